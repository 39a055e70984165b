// What passes the strict walk, and what does not by a digit.
#include "strict_reply.h"

#include <gtest/gtest.h>

namespace {

// "UNIT=DATA/FRAMES ..." of what was read, "odd", or the adapter's word.
std::string read(const std::string& reply) {
    const strict_reply read = read_strictly("010C2", reply);
    if (read.odd)
        return "odd";
    std::string told = read.notice;
    for (const unit_message& one : read.messages)
        told += (told.empty() ? "" : " ") + one.unit + "=" + one.data + "/" +
                std::to_string(one.frames);
    return told;
}

TEST(strict_reply_test, takes_whole_messages_of_each_unit_and_nothing_beside) {
    struct row {
        const char* reply;
        const char* told;
    };
    for (const row& r : {
             row{"7E804410C1AF8\r\r>", "7E8=410C1AF8/1"},
             row{"7E8 04 41 0C 1A F8 \r\n\r\n>", "7E8=410C1AF8/1"},
             row{"010C2\r7E804410C1AF8AAAAAA\r\r>", "7E8=410C1AF8/1"}, // echoed, filled up
             row{"7E904410C1AF9\r7E804410C1AF8\r\r>", "7E8=410C1AF8/1 7E9=410C1AF9/1"},
             row{"7E8100A410D0011340C\r7E903410D00\r7E8211AF80523555555\r\r>",
                 "7E8=410D0011340C1AF80523/2 7E9=410D00/1"},
             row{"18DAF110100A410D0011340C\r18DAF110211AF80523\r\r>", "10=410D0011340C1AF80523/2"},
             row{"84F110410C12482C\r84F118410C124834\r\r>", "10=410C1248/1 18=410C1248/1"},
             row{"416B10411C0163\r\r>", "10=411C01/1"},
             row{"NO DATA\r\r>", "NODATA"},
             row{"?\r\r>", "?"},
             row{"SEARCHING...\r7E804410C1AF8\r\r>", "7E8=410C1AF8/1"},

             row{"", "odd"},
             row{"410C1AF8\r\r>", "odd"},                        // whose?
             row{"7E804410C1AF\r\r>", "odd"},                    // a digit short
             row{"7E804410C1AF8A\r\r>", "odd"},                  // a digit long
             row{"7E804410C1AF8AAAAAB\r\r>", "odd"},             // no fill
             row{"7E804410C1AF8AAAA\r\r>", "odd"},               // no whole frame
             row{"7E804410C1AF8\r7E804410C1AF8\r\r>", "odd"},    // twice
             row{"7E804410C1AF8\r\r>7E804410C1AF8\r\r>", "odd"}, // so too
             row{"7E8100A410D0011340C\r\r>", "odd"},             // cut off
             row{"7E8211AF80523555555\r\r>", "odd"},             // without its first frame
             row{"7E8100A410D0011340C\r7E8221AF80523555555\r\r>", "odd"},
             row{"7E8100A410D0011340C\r7E8211AF80523555555\r7E82255555555555555\r\r>", "odd"},
             row{"7E804410C1AF8 <DATA ERROR\r\r>", "odd"},
             row{"7E804410C1AF8\rBUFFER FULL\r\r>", "odd"},
             row{"84F110410C12482D\r\r>", "odd"}, // checksum
             row{"83F110410C12482B\r\r>", "odd"}, // length
             row{"READY\r7E804410C1AF8\r\r>", "odd"},
         })
        EXPECT_EQ(read(r.reply), r.told) << r.reply;
}

TEST(strict_reply_test, splits_an_answer_without_rest_or_not_at_all) {
    const digits_by_pid lengths{{"0D", 2}, {"0C", 4}, {"05", 2}};
    const auto split = [&](const char* data) {
        std::string told;
        const auto parts = split_answer(data, lengths);
        for (std::size_t i = 0; parts && i < parts->size(); ++i)
            told += (i ? " " : "") + (*parts)[i].reply;
        return told;
    };
    EXPECT_EQ(split("410C1AF8"), "410C1AF8");
    EXPECT_EQ(split("410D000C0D0C0523"), "410D00 410C0D0C 410523"); // data like parameters
    for (const char* odd : {"", "41", "410C1A", "410C1AF80", "410C1AF800", "410C1AF80C1AF8",
                            "410C1AF81100", "430C1AF8", "410C1AF80D"})
        EXPECT_EQ(split(odd), "") << odd;
}

} // namespace

#include "recorded_adapter.h"
#include "rows.h"
#include "test_paths.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;

constexpr char HEADER[] = R"({"kestrom_recording":1,"version":"1","date":"","adapter":"wifi"})"
                          "\n";
constexpr char TALK[] = R"({"ms":5,"event":"connecting","over":"wifi"}
{"ms":10,"event":"open"}
{"ms":12,"received":"hello"}

{"ms":100,"sent":"AT Z\r"}
{"ms":140,"received":"ELM"}
{"ms":150,"received":"327\r\r>"}
{"ms":200,"sent":"01"}
{"ms":200,"sent":" 0C\r\u0000"}
{"ms":210,"received":"41 0C 00 00\r\r>"}
{"ms":300,"sent":"01 0C\r"}
{"ms":310,"received":"41 0C 1A F8 \u00e4\r\r>"}
{"ms":400,"event":"error","text":"reset"}
{"ms":500,"unsent":"04\r"}
{"ms":600,"event":"open"}
{"ms":700,"sent":"03\r01 0C\r"}
{"ms":760,"received":"NO DATA\r\r>"}
{"ms":800,"event":"closed"}
)";

class recorded_adapter_test : public testing::Test {
  protected:
    explicit recorded_adapter_test(double timing = 1)
        : adapter_(read_recording(std::string(HEADER) + TALK, "talk"), timing) {}

    // "3:text" for each piece and the milliseconds it took.
    std::string say(const std::string& bytes) {
        adapter_.receive(bytes, now_);
        return listen();
    }
    std::string open() {
        adapter_.connection_opened(now_);
        return listen();
    }
    std::string listen() {
        std::string heard;
        const milliseconds start = now_;
        while (adapter_.next_output() && !adapter_.wants_close(now_)) {
            now_ = std::max(now_, *adapter_.next_output());
            if (const std::string text = adapter_.take_output(now_); !text.empty())
                heard += std::to_string((now_ - start).count()) + ":" + text;
        }
        return adapter_.wants_close(now_) ? heard + "hung up" : heard;
    }

  private:
    recorded_adapter adapter_;
    milliseconds now_{1000};
};

class slower_recorded_adapter_test : public recorded_adapter_test {
  protected:
    slower_recorded_adapter_test() : recorded_adapter_test(2) {}
};

TEST_F(recorded_adapter_test, commands_are_answered_in_recorded_order_pieces_and_times) {
    EXPECT_EQ(open(), "2:hello");
    EXPECT_EQ(say("atz\r"), "40:ELM50:327\r\r>");
    EXPECT_EQ(say("010C\r"), "10:41 0C 00 00\r\r>");
    EXPECT_EQ(say("01 0C\r"), "10:41 0C 1A F8 \xE4\r\r>hung up");
    EXPECT_EQ(open(), "") << "the second connection";
    EXPECT_EQ(say("03\r"), "");
    EXPECT_EQ(say("01 0C\r"), "60:NO DATA\r\r>");
    EXPECT_EQ(say("01 0C\r"), "10:41 0C 00 00\r\r>") << "again from the start";
    EXPECT_EQ(open(), "2:hello") << "the first connection again";
    EXPECT_EQ(say("03\r"), "") << "further on";
    EXPECT_EQ(say("AT Z\r"), "40:ELM50:327\r\r>") << "before";
    EXPECT_EQ(say("04\rAT"), "0:?\r\r>") << "it was never sent";
    EXPECT_EQ(say(" Z\r"), "40:ELM50:327\r\r>");
}

TEST_F(slower_recorded_adapter_test, times_are_stretched) {
    EXPECT_EQ(open(), "4:hello");
    EXPECT_EQ(say("AT Z\r"), "80:ELM100:327\r\r>");
}

TEST(recording_test, what_is_no_recording_is_refused_with_file_and_line) {
    for (const table_row& row : read_rows(test_data("broken_recordings.rows")))
        EXPECT_THAT([&] { read_recording(row.fields[0], "talk"); },
                    testing::ThrowsMessage<recording_error>(testing::StartsWith(row.fields[1])))
            << row.place;
}

} // namespace

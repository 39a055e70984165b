// Reports as files: what is saved opens as it was, a hidden number is nowhere in it, and nothing
// that only looks like a report is taken for one.
#include "report_fixture.h"
#include "report_json.h"
#include "rows.h"
#include "test_paths.h"
#include "text.h"

#include <gtest/gtest.h>

namespace {

std::string in_hex(std::string_view text) {
    std::string digits;
    for (const char c : text)
        digits += request_of("", static_cast<unsigned char>(c));
    return digits;
}

TEST(saved_report, opens_as_it_was_and_holds_no_hidden_number) {
    for (const std::string& name : car_names()) {
        SCOPED_TRACE(name);
        car_on_the_bench bench(name);
        const car_report& report = bench.read();
        const std::string saved = report_json(report);
        std::string why;
        const auto opened = open_report(saved, why);
        ASSERT_TRUE(opened) << why;
        EXPECT_EQ(report_json(report_of(*opened, bench.toolies)), saved);

        const std::string vin = bench.the_car.vin;
        if (vin.empty())
            continue;
        const std::string tail = vin.substr(11);
        ASSERT_TRUE(contains(saved, tail));
        const std::string hidden =
            report_json(report_of(without_vin(bench.reader.transcript()), bench.toolies));
        EXPECT_FALSE(contains(hidden, tail));
        EXPECT_FALSE(contains(hidden, in_hex(tail.substr(0, 2)) + in_hex(tail.substr(2, 2))));
        EXPECT_TRUE(contains(hidden, vin.substr(0, 11) + "******"));
    }
}

TEST(saved_report, hides_the_number_wherever_else_it_came) {
    conversation transcript;
    transcript.pieces.resize(3);
    transcript.pieces[0].request = "0902"; // in vain
    transcript.pieces[1].request = "090A";
    transcript.pieces[1].unread = {{unread_kind::frames_unclear, "2:30313233343536"}};
    EXPECT_FALSE(contains(without_vin(transcript).pieces[1].unread[0].text, "3334"));
    transcript.pieces[0].answers = {{"7E8", "490201" + in_hex("WKED19E0601234567")}};
    transcript.pieces[1].answers = {{"7E9", "490A01" + in_hex("x234567")}};
    transcript.pieces[2].text = "last car: 234567";
    const std::vector<asked_piece> hidden = without_vin(transcript).pieces;
    EXPECT_FALSE(contains(hidden[1].answers[0].data, in_hex("2345")));
    EXPECT_EQ(hidden[2].text, "last car: ******");
}

TEST(saved_report, that_is_none_is_refused_with_the_reason) {
    car_on_the_bench bench("can11");
    const std::string sound = report_json(bench.read());
    // The worked-out half of a document is for others to read: only the conversation counts.
    const std::size_t talk = sound.find("\"conversation\"");
    for (const table_row& row : read_rows(test_data("foreign.rows"))) {
        const std::string &from = row.fields[0], &to = row.fields[1];
        std::string document = sound;
        std::size_t at = document.find(from, talk);
        at = at == document.npos ? document.find(from) : at;
        ASSERT_NE(at, document.npos) << row.place;
        document.replace(at, from.size(), to);
        std::string why;
        EXPECT_FALSE(open_report(document, why)) << row.place;
        EXPECT_EQ(why, row.fields[2]) << row.place;
    }
}

} // namespace

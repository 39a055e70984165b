// How each piece ends, as the sheet says it: a value, none, not reported, refused, or not readable.
// The car has one unit and answers what a row says; to all else there is no data.
#include "report_fixture.h"
#include "rows.h"
#include "sheet.h"
#include "test_paths.h"
#include "text.h"

#include <gtest/gtest.h>
#include <map>

namespace {

constexpr std::string_view NEXT = " > ";

class scripted_door final : public adapter_door {
  public:
    explicit scripted_door(virtual_run_loop& loop) : loop_(loop) {}
    void ask(const std::string& command, run_loop::milliseconds bound, answered told) override {
        std::string reply = "NO DATA";
        auto found = replies.find(command);
        if (found == replies.end())
            found = replies.find(command.substr(0, 2));
        if (found != replies.end()) {
            std::string& left = found->second;
            const std::size_t end = left.find(NEXT);
            reply = left.substr(0, end);
            if (end != left.npos)
                left.erase(0, end + NEXT.size());
        }
        const bool in_time = reply != "-";
        const auto takes = in_time ? run_loop::milliseconds(50) : bound;
        call_ = loop_.after(takes, [told = std::move(told), reply = reply + "\r\r>", in_time] {
            told(in_time ? std::optional(reply) : std::nullopt);
        });
    }
    void give_up() override { loop_.cancel(call_); }

    // To a request, or to what else asks its service: one after another, parted by " > "; the last
    // one stays. "-": none in time.
    std::map<std::string, std::string> replies;

  private:
    virtual_run_loop& loop_;
    run_loop::timer_id call_ = 0;
};

class one_unit {
  public:
    one_unit() : door(loop), reader(loop, door) {
        door.replies = {{"ATH1", "OK"},
                        {"0100", "7E8 06 41 00 80 10 00 00"},
                        {"0101", "7E8 06 41 01 81 07 00 00"},
                        {"03", "7E8 04 43 01 03 01"}};
    }
    car_report read() {
        reader.start({});
        loop.advance(std::chrono::minutes(10));
        EXPECT_FALSE(reader.running());
        return report_of(reader.transcript(), toolies);
    }
    std::string text(const car_report& report) { return sheet_text(sheet_of(report, resources)); }

    virtual_run_loop loop;
    scripted_door door;
    car_reader reader;
    QTemporaryDir folder;
    bundle resources{":/kestrom", "en_US"};
    user_defaults store{folder.filePath(QStringLiteral("s.conf")).toStdString()};
    mac_toolies toolies{{&resources, &store, nullptr, nullptr, folder.path().toStdString()}};
};

TEST(sheet, tells_how_each_piece_ended) {
    for (const table_row& row : read_rows(test_data("pieces.rows"))) {
        SCOPED_TRACE(row.place);
        one_unit car;
        std::size_t at = 0;
        for (; at + 2 < row.fields.size(); at += 2)
            car.door.replies[row.fields[at]] = row.fields[at + 1];
        const car_report report = car.read();
        EXPECT_EQ(report.transcript.end == reading_end::complete, row.heading == "complete");
        const std::string text = car.text(report);
        for (; at < row.fields.size(); ++at)
            EXPECT_TRUE(contains(text, row.fields[at])) << row.fields[at] << "\n" << text;
        EXPECT_TRUE(contains(text, "P0301")) << text; // a piece that fails voids nothing
    }
}

TEST(sheet, keeps_what_was_read_before_an_end) {
    one_unit car;
    for (const char* request : {"07", "0A", "0120", "010C"})
        car.door.replies[request] = "-";
    car.door.replies["020200"] = car.door.replies["0900"] = car.door.replies["0600"] = "-";
    const car_report silent = car.read();
    EXPECT_EQ(silent.transcript.end, reading_end::adapter_silent);
    EXPECT_TRUE(contains(car.text(silent), "The adapter fell silent"));
    EXPECT_TRUE(contains(car.text(silent), "P0301"));
    EXPECT_FALSE(contains(car.text(silent), "Permanent codes: none"));

    one_unit other;
    std::size_t asked = 0;
    other.reader.progress = [&](topic, std::size_t, std::size_t) {
        if (++asked == 8)
            other.reader.cancel();
    };
    const car_report cancelled = other.read();
    EXPECT_EQ(cancelled.transcript.end, reading_end::cancelled);
    EXPECT_EQ(cancelled.transcript.pieces.size(), 7U);
    EXPECT_TRUE(contains(other.text(cancelled), "not asked"));
}

TEST(sheet, tells_the_lamp_off_and_cars_apart_only_as_far_as_that_is_known) {
    one_unit car;
    car.door.replies["0101"] = "7E8 06 41 01 01 07 00 00";
    car.door.replies["0902"] = "7E8 10 14 49 02 01 57 4B 45\r7E8 21 34 44 31 39 45 30 36\r"
                               "7E8 22 30 31 32 33 34 35 36";
    const car_report all = car.read();
    EXPECT_TRUE(contains(car.text(all), "off\n")) << car.text(all);
    car.door.replies["03"] = "7E8 04 43 01 03 01\r7E9 02 43 00";
    EXPECT_TRUE(contains(car.text(car.read()), "off, as far as reported"));

    const auto compared = [&](const car_report& before) {
        return sheet_text(comparison_of(before, all, car.resources));
    };
    EXPECT_FALSE(
        contains(compared(report_of(without_vin(all.transcript), car.toolies)), "different"));
    EXPECT_FALSE(contains(compared(one_unit().read()), "different")); // tells no number
    conversation other = all.transcript;
    for (asked_piece& piece : other.pieces)
        if (piece.request == "0902")
            piece.answers[0].data.back() = '7';
    EXPECT_TRUE(contains(compared(report_of(other, car.toolies)), "two different cars"));
}

TEST(sheet, shows_markup_of_an_adapter_as_text) {
    one_unit car;
    car.door.replies["ATI"] = "<script>alert(1)</script> \"&'";
    const report_sheet sheet = sheet_of(car.read(), car.resources);
    for (const std::string& html : {sheet_html(sheet), sheet_rich_text(sheet)}) {
        EXPECT_FALSE(contains(html, "<script"));
        EXPECT_TRUE(contains(html, "&lt;script"));
        EXPECT_TRUE(contains(html, "&quot;&amp;&#39;"));
    }
}

TEST(sheet, compares_only_what_both_reports_tell) {
    one_unit before, after;
    before.door.replies["07"] = "7E8 04 47 01 04 20";
    before.door.replies["0A"] = "7E8 04 4A 01 20 02";
    after.door.replies["03"] = "7E8 02 43 00";
    after.door.replies["07"] = "7E8 03 7F 07 11";
    after.door.replies["0A"] = before.door.replies["0A"];
    before.door.replies["0600"] = after.door.replies["0600"] = "7E8 06 46 00 80 00 00 00";
    after.door.replies["0601"] = "7E8 10 0A 46 01 01 0A 00 64";
    before.door.replies["0601"] = "7E8 10 0A 46 01 01 0A 00 64\r7E8 21 00 00 0F FF";
    const std::string text =
        sheet_text(comparison_of(before.read(), after.read(), before.resources));
    const auto row = [&](const char* code) {
        const std::size_t at = text.find(code);
        return at == text.npos ? std::string() : text.substr(at, text.find('\n', at) - at);
    };
    EXPECT_TRUE(row("P0301").ends_with("–")) << text;
    EXPECT_TRUE(row("P0420").ends_with("refused (7F 07 11)")) << text;
    EXPECT_EQ(row("P2002"), "");
    EXPECT_TRUE(row("[01/01]").ends_with("could not be read")) << text;
}

} // namespace

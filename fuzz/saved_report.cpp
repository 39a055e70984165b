// A report file from outside: opened, shown, hidden and compared, or rejected with a reason.
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "report_json.h"
#include "sheet.h"

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const fuzz_toolkit tools(true);
    std::string why;
    const auto transcript = open_report(as_text(bytes), why);
    REQUIRE(transcript.has_value() == why.empty());
    if (!transcript)
        return 0;
    const car_report report = report_of(*transcript, tools.decoder);
    const car_report hidden = report_of(without_vin(*transcript), tools.decoder);
    sheet_html(sheet_of(report, tools.resources));
    sheet_text(comparison_of(report, hidden, tools.resources));
    const auto again = open_report(report_json(report), why);
    REQUIRE(again);
    REQUIRE(report_json(report_of(*again, tools.decoder)) == report_json(report));
    return 0;
}

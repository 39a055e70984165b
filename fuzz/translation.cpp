// Replies to service 01 requests, to display text and number.
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "text.h"

#include <charconv>
#include <cmath>

namespace {

constexpr std::size_t LONGEST_TEXT = 80;

void check(const mac_toolies& decoder, std::string_view reply) {
    const std::string text = decoder.translateResponse(reply);
    const double value = decoder.get_OBDVal(reply);
    REQUIRE(!text.empty() && text.size() <= LONGEST_TEXT);
    for (const std::string_view forbidden : {"nan", "inf", ">", "\r", "\n", "-0.00 ", "e+"})
        REQUIRE(!contains(text, forbidden));
    REQUIRE(std::isnan(value) == (text == "~"));
    // The number is the one that the text begins with; texts without one count as 0.
    double printed = 0;
    const std::string_view number = std::string_view(text).substr(0, text.find(' '));
    std::from_chars(number.data(), number.data() + number.size(), printed);
    REQUIRE(text == "~" || text == "N/A" || value == printed);

    const translated both = decoder.translate_once(reply);
    REQUIRE(both.text == text && (both.value == value || std::isnan(value)));
    REQUIRE(decoder.translateResponse(without(reply, " ")) == text);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const fuzz_toolkit imperial(false), metric(true);
    check(imperial.decoder, as_text(bytes));
    check(metric.decoder, as_text(bytes));
    for (const fuzz_toolkit* toolkit : {&imperial, &metric}) {
        toolkit->decoder.get_pid_name(as_text(bytes), true);
        toolkit->decoder.get_units(as_text(bytes));
        REQUIRE(std::isfinite(toolkit->decoder.get_PID_min_max(as_text(bytes), true)));
    }
    return 0;
}

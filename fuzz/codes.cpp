// Trouble codes from replies on CAN and on older buses.
#include "fuzz_one.h"
#include "mac_toolies.h"
#include "text.h"
#include "trouble_codes.h"

#include <algorithm>

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string_view reply = as_text(bytes);
    // Three codes stand in a line of 14 digits, of which only the answer's two must be there.
    const auto lines = std::size_t(std::count(reply.begin(), reply.end(), '\r')) + 1;
    for (const std::string_view mode : {"03", "07", "0A"})
        for (const bool is_can : {false, true}) {
            const bus_evidence bus{is_can ? bus_form::can : bus_form::older, bus_source::headers};
            const codes_reading read = read_codes(mode, reply, bus);
            const std::vector<std::string>& codes = read.codes;
            REQUIRE(read.answered || codes.empty());
            REQUIRE(read.answered || read.no_data || !read.unread.empty());
            REQUIRE(read.units.size() == codes.size());
            REQUIRE(codes.size() <= bytes.size() / 4 + 3 * lines);
            for (const std::string& code : codes) {
                REQUIRE(code.size() == 5);
                REQUIRE(contains("PCBU", code.substr(0, 1)));
                REQUIRE(code[1] >= '0' && code[1] <= '3');
                REQUIRE(is_hex(code.substr(2)));
            }
            REQUIRE(read_codes(mode, without(reply, " \n"), bus).codes == codes);
        }
    mac_toolies::pull_DTC_code(reply);
    return 0;
}

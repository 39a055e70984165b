// Vehicle identification numbers.
#include "fuzz_one.h"
#include "mac_toolies.h"
#include "text.h"

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string_view reply = as_text(bytes);
    const std::string vin = mac_toolies::work_out_vin(reply);
    REQUIRE(!vin.empty() && vin.size() <= 39);
    REQUIRE(!contains(vin, std::string_view("\0", 1)));
    REQUIRE(vin == "N/A" || vin.size() <= bytes.size() / 2);
    REQUIRE(mac_toolies::work_out_vin(without(reply, " >\n")) == vin);
    return 0;
}

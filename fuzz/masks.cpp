// Supported-PID bitmaps, out of replies with their headers on.
#include "fuzz_one.h"
#include "globalVars.h"
#include "mac_toolies.h"
#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

void check_bits(std::string_view mask, int group) {
    for (int n = 0; n <= 33; ++n) {
        bool expected = false;
        if (n >= 1 && n <= 32 && mask.size() == 8) {
            const int digit = mac_toolies::charToNibble(mask[std::size_t(n - 1) / 4]);
            expected = (digit >> (3 - (n - 1) % 4) & 1) != 0;
        }
        const std::string pid = mac_toolies::convertByte2HexStr(unsigned(group * 32 + n));
        REQUIRE(mac_toolies::is_this_code_available(mask, pid, group) == expected);
    }
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string_view reply = as_text(bytes);
    std::string bare = without(reply, std::string_view(" \n>\0", 4));
    std::ranges::transform(bare, bare.begin(), [](unsigned char c) { return std::toupper(c); });
    for (int group = -1; group <= 4; ++group) {
        reset_global_vars();
        mac_toolies::handle_00_replies(reply, group);
        const std::string_view masks[] = {g_Supported_obd_mask_0, g_Supported_obd_mask_1,
                                          g_Supported_obd_mask_2, g_Supported_obd_mask_3};
        for (int i = 0; i < 4; ++i) {
            const std::string_view mask = masks[i];
            REQUIRE(mask.empty() || (i == group && i < 3 && mask.size() == 8));
            REQUIRE(contains(bare, mask)); // what the car sent, in capitals, not assembled
            if (!mask.empty())
                check_bits(mask, i);
        }
    }
    mac_toolies::is_this_code_available(reply, reply, int(bytes.size()));
    return 0;
}

#include "globalVars.h"
#include "mac_toolies.h"
#include "reading.h"
#include "text.h"

namespace {

constexpr std::size_t MASK_AT = 4, MASK_DIGITS = 8; // after "41" and the PID
constexpr unsigned PIDS_OF_A_GROUP = 0x20;

void store_mask(int group, std::string_view mask) {
    // Beyond PID 60 nothing is stored.
    bounded_text<16>* const masks[] = {&g_Supported_obd_mask_0, &g_Supported_obd_mask_1,
                                       &g_Supported_obd_mask_2};
    if (group >= 0 && group < 3)
        *masks[group] = mask;
}

} // namespace

// The last engine line wins. Without one, the first line with a mask counts, from any unit; masks
// of several units are never combined.
void mac_toolies::handle_00_replies(std::string_view reply, int this_pid_group) {
    if (this_pid_group < 0 || this_pid_group > 7)
        return;
    const std::string request =
        "01" + convertByte2HexStr(PIDS_OF_A_GROUP * static_cast<unsigned>(this_pid_group));
    std::string_view mask;
    bool of_engine = false;
    reading read = read_reply(request, reply);
    read.forget_refusals();
    for (const ecu_answer& one : read.answers) {
        const bool engine = one.unit == "Engine";
        if (one.data.size() < MASK_AT + MASK_DIGITS || (!engine && !mask.empty()))
            continue;
        mask = slice(std::string_view(one.data), MASK_AT, MASK_DIGITS);
        of_engine = of_engine || engine;
    }
    // Another unit's mask counts only if the unread pieces do not include the engine's.
    if (!mask.empty() && (of_engine || read.unread.empty()))
        store_mask(this_pid_group, mask);
}

bool mac_toolies::is_this_code_available(std::string_view mask, std::string_view this_pid,
                                         int this_pid_set) {
    const auto bytes = fromHexString(mask.substr(0, MASK_DIGITS));
    const std::int64_t bit = std::int64_t{convertStr2Byte(this_pid)} - 32LL * this_pid_set - 1;
    if (!bytes || bit < 0 || bit / 8 >= static_cast<std::int64_t>(bytes->size()))
        return false;
    return ((*bytes)[static_cast<std::size_t>(bit / 8)] >> (7 - bit % 8) & 1) != 0;
}

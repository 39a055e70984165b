#include "globalVars.h"
#include "mac_toolies.h"
#include "reply_lines.h"
#include "text.h"

namespace {

constexpr std::size_t MASK_DIGITS = 8;

// The bitmap in a line with its header on; nothing in a line that holds none.
std::optional<std::string_view> mask_of(std::string_view line) {
    std::size_t data = line.starts_with("7E") ? 5 : 6;
    if (data == 6)
        for (const std::string_view marker : {"4100", "4120", "4140", "4160"})
            if (marker_behind_29_bit_header(line, marker, marker))
                data = 10;
    const std::string_view mask = slice(line, data + 4, MASK_DIGITS);
    if (slice(line, data, 2) != "41" || mask.size() < MASK_DIGITS)
        return std::nullopt;
    return mask;
}

void store_mask(int group, std::string_view mask) {
    // What lies beyond PID 60 is never kept.
    bounded_text<16>* const masks[] = {&g_Supported_obd_mask_0, &g_Supported_obd_mask_1,
                                       &g_Supported_obd_mask_2};
    if (group >= 0 && group < 3)
        *masks[group] = mask;
}

} // namespace

// The last engine line wins. Without one it is the first line that holds a mask, whoever sent it;
// masks of several units are never combined.
void mac_toolies::handle_00_replies(std::string_view reply, int this_pid_group) {
    const std::vector<std::string> lines = reply_lines(reply);
    std::optional<std::string_view> engine_mask, first_mask;
    bool engine_answered = false;
    for (const std::string& line : lines) {
        const auto mask = mask_of(line);
        if (pull_ECU(line) == "Engine") {
            engine_answered = true;
            engine_mask = mask ? mask : engine_mask;
        } else if (!first_mask) {
            first_mask = mask;
        }
    }
    if (const auto mask = engine_answered ? engine_mask : first_mask)
        store_mask(this_pid_group, *mask);
}

bool mac_toolies::is_this_code_available(std::string_view mask, std::string_view this_pid,
                                         int this_pid_set) {
    const auto bytes = fromHexString(mask.substr(0, MASK_DIGITS));
    const std::int64_t bit = std::int64_t{convertStr2Byte(this_pid)} - 32LL * this_pid_set - 1;
    if (!bytes || bit < 0 || bit / 8 >= static_cast<std::int64_t>(bytes->size()))
        return false;
    return ((*bytes)[static_cast<std::size_t>(bit / 8)] >> (7 - bit % 8) & 1) != 0;
}

#include "supported_scan.h"

#include "reading.h"
#include "text.h"

namespace {

constexpr unsigned GROUP = 0x20, LAST_GROUP = 0xC0;
constexpr std::size_t MASK_START = 4, MASK_DIGITS = 8;

} // namespace

std::string pid_text(unsigned pid) {
    constexpr char DIGITS[] = "0123456789ABCDEF";
    return {DIGITS[pid / 16 % 16], DIGITS[pid % 16]};
}

std::optional<std::string> supported_scan::first_question() {
    if (!announced_ || group_ > LAST_GROUP)
        return std::nullopt;
    return pid_text(group_);
}

// Each unit's bitmap adds to the car's.
void supported_scan::whole_reply_came(std::string_view reply) {
    for (const ecu_answer& one : read_reply("01" + pid_text(group_), reply).answers) {
        const std::string_view mask = slice(std::string_view(one.data), MASK_START, MASK_DIGITS);
        if (mask.size() < MASK_DIGITS)
            continue;
        if (!found_)
            found_.emplace();
        const std::uint32_t bits = mac_toolies::convertStr2Byte(mask);
        for (unsigned place = 1; place < GROUP; ++place)
            if ((bits >> (GROUP - place) & 1) != 0)
                found_->set(group_ + place);
        next_announced_ = next_announced_ || (bits & 1) != 0;
    }
}

void supported_scan::first_question_answered(std::string_view) {
    group_ += GROUP;
    announced_ = next_announced_;
    next_announced_ = false;
}

#include "globalVars.h"
#include "mac_toolies.h"
#include "reply_lines.h"
#include "system_log.h"
#include "text.h"

#include <array>
#include <set>

namespace {

constexpr std::size_t CODE_DIGITS = 4;
constexpr std::size_t FIRST_FRAME = 12, LONGEST_FRAME = 14; // digits of a numbered frame

// One control unit's answer: a line of its own, or a length line and the numbered frames that
// followed it (ISO 15765-2, as the adapter prints it: "00A", "0:430401330220", "1:03000420000000").
struct unit_answer {
    std::string text;
    bool in_frames = false;
    std::size_t bytes_announced = 0;
    std::size_t bytes_received = 0;
};

bool is_frame(std::string_view line) {
    return slice(line, 1, 1) == ":" && is_hex(line.substr(0, 1));
}

bool is_length_line(std::string_view line, std::string_view expected) {
    const bool is_answer = line.starts_with(expected) && line.size() % 2 == 0;
    return line.size() <= 4 && is_hex(line) && !is_answer;
}

// Gathers a reply's lines into the answers of the units, in the order in which these began.
class answer_gatherer {
  public:
    explicit answer_gatherer(std::string_view expected) : expected_(expected) {}

    void take(const std::string& line) {
        if (is_frame(line)) {
            take_frame(line, mac_toolies::convertStr2Byte(line.substr(0, 1)));
        } else if (is_length_line(line, expected_)) {
            opened_.push_back(answers.size());
            answers.push_back({line, true, mac_toolies::convertStr2Byte(line)});
        } else if (line.starts_with(expected_)) {
            answers.push_back({line});
        }
    }

    std::vector<unit_answer> answers;

  private:
    // The adapter prints a unit's length line and frame 0 together. Of the units that await the
    // same later frame, the one that began first gets it. Nobody gets a frame behind a gap: its
    // bytes would be misread.
    void take_frame(std::string_view frame, std::size_t number) {
        const std::size_t digits = frame.size() - 2;
        if (digits > LONGEST_FRAME || digits % 2 != 0)
            return; // something else has run into it
        std::size_t receiver = 0;
        if (number == 0 && !opened_.empty()) {
            receiver = opened_.back();
            opened_.pop_back();
        } else if (auto& waiting = awaiting_[number]; !waiting.empty()) {
            receiver = *waiting.begin();
            waiting.erase(waiting.begin());
        } else {
            return;
        }
        unit_answer& answer = answers[receiver];
        // A byte that is missing would shift the codes behind it.
        const bool last = answer.bytes_received + digits / 2 >= answer.bytes_announced;
        if (number == 0 && answer.bytes_received == 0 ? digits != FIRST_FRAME
                                                      : digits != LONGEST_FRAME && !last)
            return;
        answer.text.append("\r").append(frame);
        answer.bytes_received += digits / 2;
        if (answer.bytes_received < answer.bytes_announced)
            awaiting_[(number + 1) % awaiting_.size()].insert(receiver);
    }

    std::string_view expected_;
    std::vector<std::size_t> opened_;                // length line seen, frame 0 not yet
    std::array<std::set<std::size_t>, 16> awaiting_; // by the number of the next frame
};

// What is not hex is no code, and what follows it is none either: the line broke off there, and
// another may have run into it. False then.
bool add_code(std::string_view digits, std::vector<std::string>& codes) {
    if (!is_hex(digits))
        return false;
    codes.push_back(mac_toolies::pull_DTC_code(digits));
    return true;
}

// Whether the leading decimal digits are a number above 0.
bool has_decimal_value(std::string_view digits) {
    const std::string_view decimals = digits.substr(0, digits.find_first_not_of("0123456789"));
    return decimals.find_first_not_of('0') != decimals.npos;
}

// Three codes to a line, filled up with zeros. The first place is always read, the others only with
// a decimal value.
void decode_line(std::string_view line, std::vector<std::string>& codes) {
    const std::string padded = mac_toolies::padString(line, '0', 14, true);
    const std::string_view groups = std::string_view(padded).substr(2);
    if (!add_code(groups.substr(0, CODE_DIGITS), codes))
        return;
    for (const std::size_t position : {4, 8}) {
        const auto group = groups.substr(position, CODE_DIGITS);
        if (!is_hex(group) || (has_decimal_value(group) && !add_code(group, codes)))
            return;
    }
}

// The answer's two digits, the number of codes as a byte, then the codes; fill bytes may follow.
void decode_CAN_message(std::string_view message, std::vector<std::string>& codes) {
    const std::uint32_t count = mac_toolies::convertStr2Byte(slice(message, 2, 2));
    for (std::size_t i = 0; i < count && i * 4 + 8 <= message.size(); ++i)
        if (!add_code(message.substr(i * 4 + 4, CODE_DIGITS), codes))
            return;
}

} // namespace

std::vector<std::string> mac_toolies::work_reply_to_error_codes_pid(std::string_view mode,
                                                                    std::string_view this_reply) {
    return decode_trouble_codes(mode, this_reply, g_cur_protocol.contains("CAN"));
}

std::vector<std::string>
mac_toolies::decode_trouble_codes(std::string_view mode, std::string_view this_reply, bool is_can) {
    std::vector<std::string> lines = reply_lines(this_reply);
    std::erase(lines, mode); // the echo
    const std::string expected = replace_all(mode, "0", "4");
    bool in_frames = false;
    for (const std::string& line : lines)
        in_frames = in_frames || is_frame(line);

    std::vector<std::string> codes;
    try {
        if (in_frames || is_can) {
            answer_gatherer gatherer(expected);
            for (const std::string& line : lines)
                gatherer.take(line);
            for (const unit_answer& unit : gatherer.answers) {
                const std::string message = unit.in_frames ? grab_CAN_msg(unit.text) : unit.text;
                if (message.starts_with(expected))
                    decode_CAN_message(message, codes);
            }
        } else {
            for (const std::string& line : lines)
                if (line.starts_with(expected))
                    decode_line(line, codes);
        }
    } catch (const std::exception& failure) {
        qCWarning(log_toolkit, "work_reply_to_error_codes_pid-001O: %s", failure.what());
    }
    return codes;
}

// SAE J2012: two bits for the system, two for the first digit.
std::string mac_toolies::pull_DTC_code(std::string_view four_digits) {
    const int first = charToNibble(four_digits.empty() ? '0' : four_digits.front());
    std::string code{"PCBU"[first / 4], static_cast<char>('0' + first % 4)};
    return code.append(slice(four_digits, 1, 3));
}

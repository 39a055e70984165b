#include "faults.h"

#include <array>
#include <charconv>
#include <stdexcept>

namespace {

constexpr std::optional<long> REQUIRED;

constexpr std::array ROWS = {
    fault_row{fault_kind::refuse, "refuse", "", 0, "connections are refused"},
    fault_row{fault_kind::close_after, "close_after", "N", REQUIRED,
              "the connection is closed instead of answering the command after the first N"},
    fault_row{fault_kind::stall_after, "stall_after", "N", REQUIRED,
              "nothing is said after the first N commands of a connection"},
    fault_row{fault_kind::latency, "latency", "MS", REQUIRED,
              "every reply comes MS milliseconds later"},
    fault_row{fault_kind::one_byte_chunks, "one_byte_chunks", "", 0, "each byte is sent alone"},
    fault_row{fault_kind::split_prompt, "split_prompt", "MS", 50,
              "the prompt comes MS milliseconds after its reply"},
    fault_row{fault_kind::merge_replies, "merge_replies", "MS", 40,
              "a reply is held for MS milliseconds and sent in one piece with what follows"},
    fault_row{fault_kind::nagle, "nagle", "", 0,
              "a reply is written line by line, and small pieces wait for the receiver's "
              "acknowledgement"},
    fault_row{fault_kind::echo_stuck, "echo_stuck", "", 0,
              "the echo stays on, whatever \"AT E0\" answers"},
    fault_row{fault_kind::text_after_prompt, "text_after_prompt", "", 0,
              "text follows each prompt"},
    fault_row{fault_kind::crlf, "crlf", "", 0, "lines end in CR LF, whatever \"AT L0\" answers"},
    fault_row{fault_kind::padding, "padding", "", 0,
              "CAN frames are shown with their fill bytes when headers are on"},
    fault_row{fault_kind::garbage, "garbage", "PERCENT", 20,
              "so many replies have rubbish bytes strewn in"},
    fault_row{fault_kind::drop_bytes, "drop_bytes", "PERCENT", 2,
              "so many bytes of replies get lost"},
    fault_row{fault_kind::duplicate_reply, "duplicate_reply", "N", 3,
              "every Nth reply is sent twice"},
    fault_row{fault_kind::late_reply, "late_reply", "N", 5,
              "every Nth reply comes four seconds late"},
    fault_row{fault_kind::wrong_pid, "wrong_pid", "N", 3,
              "every Nth live value answers for another PID"},
    fault_row{fault_kind::data_error, "data_error", "N", 4,
              "every Nth message arrives damaged: \"<DATA ERROR\""},
    fault_row{fault_kind::buffer_full, "buffer_full", "BYTES", 60,
              "a reply longer than BYTES breaks off with \"BUFFER FULL\""},
    fault_row{fault_kind::can_error, "can_error", "N", 4,
              "every Nth request on CAN ends in \"CAN ERROR\""},
    fault_row{
        fault_kind::clone, "clone", "", 0,
        "a cheap copy: \"ELM327 v2.1\", \"?\" to half the commands, NUL bytes before replies"},
    fault_row{fault_kind::no_bus, "no_bus", "", 0, "no car is there"},
    fault_row{fault_kind::ignition_off_at, "ignition_off_at", "S", REQUIRED,
              "the ignition goes off S seconds after the start"},
    fault_row{fault_kind::digit_counts_messages, "digit_counts_messages", "", 0,
              "the digit behind a request counts messages instead of CAN frames"},
    fault_row{fault_kind::digit_ignored, "digit_ignored", "", 0,
              "the digit behind a request changes nothing"},
    fault_row{fault_kind::digit_unknown, "digit_unknown", "", 0,
              "\"?\" to a request with a digit behind it"},
    fault_row{fault_kind::digit_no_data, "digit_no_data", "", 0,
              "\"NO DATA\" to a request with a digit behind it"},
    fault_row{fault_kind::late_frames_lost, "late_frames_lost", "", 0,
              "frames behind an early end of a reply reach no later one"},
    fault_row{fault_kind::two_bytes, "two_bytes", "", 0,
              "of a request only the first two bytes are sent"},
    fault_row{fault_kind::zero_bytes, "zero_bytes", "", 0,
              "a request's bytes behind the first two are sent as zeros"},
    fault_row{fault_kind::first_pid_only, "first_pid_only", "", 0,
              "of several parameters in a request the car answers the first"},
    fault_row{fault_kind::pids_reordered, "pids_reordered", "", 0,
              "several parameters in a request are answered in another order"},
    fault_row{fault_kind::several_refused, "several_refused", "", 0,
              "several parameters in a request are refused: \"7F 01 12\""},
    fault_row{fault_kind::wrong_length, "wrong_length", "", 0,
              "an answer of several parameters is a byte longer than these"},
    fault_row{fault_kind::pending, "pending", "N", 5,
              "every Nth live value is put off first: \"7F 01 78\""},
    fault_row{fault_kind::unit_gap, "unit_gap", "MS", 58,
              "each further unit answers MS milliseconds behind the one before"},
};

[[noreturn]] void fail(std::string_view text, const std::string& reason) {
    throw std::invalid_argument("fault \"" + std::string(text) + "\": " + reason);
}

} // namespace

std::span<const fault_row> fault_rows() {
    return ROWS;
}

fault parse_fault(std::string_view text) {
    const std::size_t equals = text.find('=');
    const std::string_view name = text.substr(0, equals);
    for (const fault_row& row : ROWS) {
        if (row.name != name)
            continue;
        if (equals == std::string_view::npos) {
            if (!row.value)
                fail(text,
                     "needs a value, " + std::string(row.name) + "=" + std::string(row.value_name));
            return {row.kind, *row.value};
        }
        if (row.value_name.empty())
            fail(text, "takes no value");
        const std::string_view digits = text.substr(equals + 1);
        long value = 0;
        const auto [end, error] =
            std::from_chars(digits.data(), digits.data() + digits.size(), value);
        if (error != std::errc() || end != digits.data() + digits.size() || value < 0 ||
            value > 1'000'000'000)
            fail(text, "the value must be a whole number from 0 to 1000000000");
        return {row.kind, value};
    }
    fail(text, "there is no fault of that name");
}

std::optional<long> fault_set::value(fault_kind kind) const {
    std::optional<long> found;
    for (const fault& one : faults_)
        if (one.kind == kind)
            found = one.value;
    return found;
}

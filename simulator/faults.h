// What can go wrong between a program and a car, by name. Faults can be combined; each is off by
// default.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

enum class fault_kind {
    refuse,
    close_after,
    stall_after,
    latency,
    one_byte_chunks,
    split_prompt,
    merge_replies,
    nagle,
    echo_stuck,
    text_after_prompt,
    crlf,
    padding,
    garbage,
    drop_bytes,
    duplicate_reply,
    late_reply,
    wrong_pid,
    data_error,
    buffer_full,
    can_error,
    clone,
    no_bus,
    ignition_off_at,
    digit_counts_messages,
    digit_ignored,
    digit_unknown,
    digit_no_data,
    late_frames_lost,
    two_bytes,
    zero_bytes,
    first_pid_only,
    pids_reordered,
    several_refused,
    wrong_length,
    pending,
    unit_gap,
};

struct fault {
    fault_kind kind;
    long value = 0; // its meaning is in the fault's row
};

struct fault_row {
    fault_kind kind;
    std::string_view name;
    std::string_view value_name; // empty: takes none
    std::optional<long> value;   // the default; absent: a value is required
    std::string_view effect;
};

std::span<const fault_row> fault_rows();

// "NAME" or "NAME=VALUE". Throws std::invalid_argument with the reason.
fault parse_fault(std::string_view text);

// The faults of one adapter.
class fault_set {
  public:
    fault_set() = default;
    explicit fault_set(std::vector<fault> faults) : faults_(std::move(faults)) {}

    bool has(fault_kind kind) const { return value(kind).has_value(); }
    // The last given value of that kind.
    std::optional<long> value(fault_kind kind) const;

  private:
    std::vector<fault> faults_;
};

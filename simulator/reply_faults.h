// An outgoing reply, and what faults do to it.
#pragma once

#include "faults.h"
#include "seeded_random.h"

#include <chrono>
#include <string>
#include <vector>

struct reply_piece {
    std::chrono::milliseconds after; // the command
    std::string text;
};

// In order of time; the last piece ends in the prompt.
using adapter_reply = std::vector<reply_piece>;

// `number` counts the replies of an adapter from 1.
void apply_reply_faults(adapter_reply& pieces, const fault_set& faults, long number,
                        const std::string& end_of_line, seeded_random& random);

// Whether a fault that strikes every Nth hits the `number`th, counted from 1.
bool every_nth(const fault_set& faults, fault_kind kind, long number);

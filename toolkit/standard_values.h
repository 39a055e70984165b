// Values of service 01 parameters and service 06 tests as the standard defines them (SAE J1979, ISO
// 15031-5): for parameters without a row in the named operations of mac_toolies, and for those
// whose text there misleads. The rows are in standard_rows.cpp.
#pragma once

#include "mac_toolies.h"

#include <string>
#include <string_view>

// Data bytes of an answer: `bytes`, or in some cars `or_bytes`; 0 without a row.
struct answer_length {
    unsigned bytes, or_bytes;
};
answer_length standard_length(unsigned pid);

bool has_standard_value(unsigned pid);
// Empty for a parameter whose name is in the shipped tables (below 60).
std::string_view standard_name(unsigned pid);
std::string_view standard_units(unsigned pid, bool metric);

// The range that cars show, in these units; the bytes can express more.
struct value_range {
    double low, high;
};
value_range standard_range(unsigned pid, bool metric);

// The text and the number for charts (the first of several). "-" and NaN if the answer says that
// none of its values is present, "~" and NaN if it is not a complete answer to a parameter with a
// row. Only the first answer of the reply counts.
translated standard_value(std::string_view reply, bool metric);

// The digits of a reply to a service 01 request: its first non-empty line, without blanks; for a
// parameter whose answers take several CAN frames, these frames assembled.
std::string whole_answer(std::string_view reply);

// A test value (two bytes in hex digits) by its unit-and-scaling identifier, including signed ones
// and those that CAN_scale_and_units reads differently; empty for an identifier without a row.
std::string standard_test_value(std::string_view identifier, std::string_view value);

// Whether that identifier can be scaled, here or by CAN_scale_and_units.
bool has_test_scaling(std::string_view identifier);

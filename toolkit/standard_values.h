// Values of service 01 parameters and service 06 tests as the standard gives them (SAE J1979, ISO
// 15031-5): of parameters that the named operations of mac_toolies have no row for, and of those
// whose text there is known to mislead. Rows are data; standard_rows.cpp holds them.
#pragma once

#include "mac_toolies.h"

#include <string>
#include <string_view>

// Data bytes of an answer: `bytes`, or in some cars `or_bytes`; 0 where the table has no row.
struct answer_length {
    unsigned bytes, or_bytes;
};
answer_length standard_length(unsigned pid);

bool has_standard_value(unsigned pid);
// Empty for a parameter whose name is in the shipped tables (below 60).
std::string_view standard_name(unsigned pid);
std::string_view standard_units(unsigned pid, bool metric);

// From what cars show to what they show, in the units asked for: not all that the bytes can say.
struct value_range {
    double low, high;
};
value_range standard_range(unsigned pid, bool metric);

// The text and the number that charts take, the first of several; "-" and NaN when the answer says
// that it holds none of its values, "~" and NaN when it is no whole answer to a parameter with a
// row. Only the first answer of the reply counts.
translated standard_value(std::string_view reply, bool metric);

// What a reply to a service 01 request says as digits: its first line that holds anything, without
// blanks; of a parameter whose answers take more than one CAN frame those frames put together.
std::string whole_answer(std::string_view reply);

// A test value (two bytes in hex digits) by its unit-and-scaling identifier, the signed ones and
// those that CAN_scale_and_units reads otherwise among them; empty for an identifier without a row.
std::string standard_test_value(std::string_view identifier, std::string_view value);

// Whether a test value can be scaled by that identifier, here or by CAN_scale_and_units.
bool has_test_scaling(std::string_view identifier);

// What a conversation holds of one unit's answer to one request.
#pragma once

#include "car_report.h"

#include <string>
#include <string_view>
#include <vector>

finding finding_of(const conversation& heard, std::string_view request, std::string_view unit);

// The data of its answers, in the order in which they came.
std::vector<std::string> answers_of(const conversation& heard, std::string_view request,
                                    std::string_view unit);

// What the unit's answer to a service 09 request says, behind service and identifier. On the older
// buses the messages are numbered from 1 on; `whole` turns false when one is missing.
std::string identity_bytes(const conversation& heard, std::string_view request,
                           std::string_view unit, bool& whole);

// Each fills in one room of the report.
void fill_status(unit_report& unit, const conversation& heard);
void fill_codes(unit_report& unit, const conversation& heard, const mac_toolies& toolies);
void fill_values(unit_report& unit, const conversation& heard, const mac_toolies& toolies);
void fill_identity(unit_report& unit, const conversation& heard);
void fill_tests(unit_report& unit, const conversation& heard, const mac_toolies& toolies);

// One unit's answer to one request, from a conversation.
#pragma once

#include "car_report.h"

#include <string>
#include <string_view>
#include <vector>

finding finding_of(const conversation& transcript, std::string_view request, std::string_view unit);

// Of a list of identifiers, which may be incomplete.
finding list_finding(const conversation& transcript, std::string_view service, unsigned group,
                     std::string_view unit);

// The data of its answers, in order of arrival.
std::vector<std::string> answers_of(const conversation& transcript, std::string_view request,
                                    std::string_view unit);

// The unit's answer to a service 09 request, without service and identifier. On the older buses
// messages are numbered from 1; `whole` becomes false if one is missing.
std::string identity_bytes(const conversation& transcript, std::string_view request,
                           std::string_view unit, bool& whole);

// Each fills in one part of the report.
void fill_status(unit_report& unit, const conversation& transcript);
void fill_codes(unit_report& unit, const conversation& transcript, const mac_toolies& toolies);
void fill_values(unit_report& unit, const conversation& transcript, const mac_toolies& toolies);
void fill_identity(unit_report& unit, const conversation& transcript);
void fill_tests(unit_report& unit, const conversation& transcript, const mac_toolies& toolies);
// Gaps: missing lists of identifiers, which may have listed more.
void fill_lost_lists(unit_report& unit, const conversation& transcript);

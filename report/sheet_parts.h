// The sections of a sheet, as sheet.cpp puts them together.
#pragma once

#include "sheet.h"

#include <functional>

class bundle;

// A text of the strings table, its places filled in.
std::string say(const bundle& texts, std::string_view key,
                std::initializer_list<std::string> places = {});
// A monitor or counter in the user's language; what the strings table does not know as it is.
std::string named(const bundle& texts, const std::string& name);
// "Engine (7E8)".
std::string unit_label(const unit_report& unit);

using section_maker = void (*)(sheet_section& to, const car_report& report, const bundle& texts);
void codes_section(sheet_section& to, const car_report& report, const bundle& texts);
void frames_section(sheet_section& to, const car_report& report, const bundle& texts);
void readiness_section(sheet_section& to, const car_report& report, const bundle& texts);
void tests_section(sheet_section& to, const car_report& report, const bundle& texts);
void counters_section(sheet_section& to, const car_report& report, const bundle& texts);
void unread_section(sheet_section& to, const car_report& report, const bundle& texts);

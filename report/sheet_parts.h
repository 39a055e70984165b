// The sections of a sheet, assembled by sheet.cpp.
#pragma once

#include "sheet.h"

#include <functional>

class bundle;

// A text of the strings table with its placeholders filled in.
std::string say(const bundle& texts, std::string_view key,
                std::initializer_list<std::string> places = {});
// A monitor or counter in the user's language, or unchanged if the strings table lacks it.
std::string named(const bundle& texts, const std::string& name);
// The text in place of a value: "not reported", "refused (7F 0A 11)" ...
std::string instead(const finding& found, const bundle& texts);
// The text in place of a value that no unit reported.
std::string instead(const car_report& report, part one, const bundle& texts);
// "Engine (7E8)".
std::string unit_label(const unit_report& unit);

// Of a calibration, or why it is missing.
std::string calibration_id(const unit_report& unit, const calibration& one, const bundle& texts);
std::string calibration_number(const unit_report& unit, const calibration& one,
                               const bundle& texts);

using section_maker = void (*)(sheet_section& to, const car_report& report, const bundle& texts);
void codes_section(sheet_section& to, const car_report& report, const bundle& texts);
void frames_section(sheet_section& to, const car_report& report, const bundle& texts);
void readiness_section(sheet_section& to, const car_report& report, const bundle& texts);
void tests_section(sheet_section& to, const car_report& report, const bundle& texts);
void counters_section(sheet_section& to, const car_report& report, const bundle& texts);
void unread_section(sheet_section& to, const car_report& report, const bundle& texts);

// The report as a JSON document (docs/json/report.schema.json), and back. The report of a document
// is derived again from the conversation that it holds.
#pragma once

#include "car_report.h"

#include <optional>
#include <string>
#include <string_view>

inline constexpr int REPORT_VERSION = 1;

// Indented, with a final line end. Numbers are hidden in the conversation, not here.
std::string report_json(const car_report& report);

// Hostile input: nothing, with the reason in `why`, if it is not such a document.
std::optional<conversation> open_report(std::string_view document, std::string& why);

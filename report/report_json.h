// The report as a JSON document (docs/json/report.schema.json), and back. Reading derives the
// report again from the conversation in the document.
#pragma once

#include "car_report.h"

#include <optional>
#include <string>
#include <string_view>

inline constexpr int REPORT_VERSION = 1;

// Indented, with a final newline. A hidden VIN is hidden in the conversation already.
std::string report_json(const car_report& report);

// The input is hostile: returns nothing, and the reason in `why`, if it is not such a document.
std::optional<conversation> open_report(std::string_view document, std::string& why);

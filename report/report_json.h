// The report as a JSON document (docs/json/report.schema.json), and back. What a document says of
// the car is worked out anew from the conversation that it holds.
#pragma once

#include "car_report.h"

#include <optional>
#include <string>
#include <string_view>

inline constexpr int REPORT_VERSION = 1;

// Pretty printed, with a line end behind it. Hidden numbers are the conversation's business.
std::string report_json(const car_report& report);

// From outside and hostile: nothing, with the reason in `why`, for what is no such document.
std::optional<conversation> open_report(std::string_view document, std::string& why);

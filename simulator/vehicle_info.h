// Services 06 and 09 of one unit: monitoring test results, and information about the car and the
// unit itself.
#pragma once

#include "car.h"

// No messages if the unit does not answer.
std::vector<byte_string> monitor_tests(const control_unit& unit, const byte_string& request,
                                       bool can);
std::vector<byte_string> vehicle_info(const car& the_car, const control_unit& unit,
                                      const byte_string& request, bool can);

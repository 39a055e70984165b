// What this program knows of a service 01 parameter. The named operations of mac_toolies come
// first; where they have no row it is the standard's table. Everybody who shows a parameter asks
// here, by two hex digits of any case.
#pragma once

#include "standard_values.h"

// Whether replies to it can be told in words or numbers.
bool is_decoded(unsigned pid);
// Whether it is the standard's table alone that tells of it.
bool is_told_by_standard(unsigned pid);

std::string parameter_name(const mac_toolies& toolies, std::string_view pid);
std::string parameter_units(const mac_toolies& toolies, std::string_view pid);
value_range parameter_range(const mac_toolies& toolies, std::string_view pid);
translated parameter_value(const mac_toolies& toolies, std::string_view reply);

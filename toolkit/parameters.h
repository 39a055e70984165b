// What this program knows about a service 01 parameter: from the named operations of mac_toolies,
// or where they have no row from the standard's table. Everything that shows a parameter uses this,
// by two hex digits of any case.
#pragma once

#include "standard_values.h"

// Whether replies to it can be decoded.
bool is_decoded(unsigned pid);
// Whether only the standard's table has it.
bool only_standard_decodes(unsigned pid);

std::string parameter_name(const mac_toolies& toolies, std::string_view pid);
std::string parameter_units(const mac_toolies& toolies, std::string_view pid);
value_range parameter_range(const mac_toolies& toolies, std::string_view pid);
translated parameter_value(const mac_toolies& toolies, std::string_view reply);

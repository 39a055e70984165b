// Foreign text as it may stand in a report: UTF-8, in one line, no longer than makes sense.
#pragma once

#include <string>
#include <string_view>

std::string readable(std::string_view foreign);

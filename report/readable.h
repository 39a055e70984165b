// Makes outside text fit for a report: UTF-8, one line, limited length.
#pragma once

#include <string>
#include <string_view>

std::string readable(std::string_view foreign);

// Where a test finds its files. Each test program has these compiled in by themselves
// (cmake/kestrom.cmake), so that a compiler cache serves clones in any folder.
#pragma once

#include <string>
#include <string_view>

// `path`: from the top of the sources.
std::string source_file(std::string_view path);
// `name`: in the folder "data" beside the test's CMake file.
std::string test_data(std::string_view name);

#pragma once

#include <string>
#include <vector>

// Lets warnings that contain `part` pass until the test ends.
void expect_warning(const std::string& part);

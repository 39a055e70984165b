// Where the program stores what it writes for the user: run logs and their exports.
#pragma once

#include <string>

// The current user's folder, without a trailing slash; it may not exist yet.
std::string user_data_folder();

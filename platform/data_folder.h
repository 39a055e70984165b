// Where the program keeps what it writes for the user: run logs and their exports.
#pragma once

#include <string>

// The folder of the user who runs the program, without a slash at its end; it may not exist yet.
std::string user_data_folder();

// Reads the reply to a service 01 request for the live screen, logs and exports: one line, with or
// without header. Adapters and buses lose, add and mix up bytes; an incomplete answer would read as
// a value that no car sent.
#pragma once

#include <string_view>

// The two digits of the parameter that it answers; empty if it is not an answer.
std::string_view parameter_in(std::string_view reply);
// Whether it answers that parameter, in letters of any case; or another one.
bool answers_parameter(std::string_view reply, std::string_view pid);
bool answers_another(std::string_view reply, std::string_view pid);

// The answer itself, without header, checksum and CAN padding; empty if the reply is not an answer,
// or not of its parameter's length (SAE J1979).
std::string_view answer_in(std::string_view reply);

// What the reply to a service 01 request says. Replies come from adapters and buses that lose, add
// and mix up bytes; what is no whole answer would read as a value that no car sent.
#pragma once

#include <string_view>

// Whether it begins as an answer to that parameter.
bool answers_parameter(std::string_view reply, std::string_view pid);

// The answer itself, without the bytes that fill up a CAN frame; empty when the reply is none, or
// not as long as its parameter's answers are (SAE J1979).
std::string_view answer_in(std::string_view reply);

// Whether it holds what adapters say instead of data, such as "NODATA": capitals, without blanks.
bool holds_notice(std::string_view reply);

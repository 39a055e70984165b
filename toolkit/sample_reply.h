// What the reply to a service 01 request says, as the live screen, logs and exports read it: one
// line, with or without its header. Replies come from adapters and buses that lose, add and mix up
// bytes; what is no whole answer would read as a value that no car sent.
#pragma once

#include <string_view>

// The two digits of the parameter that it answers; empty when it is no answer.
std::string_view parameter_in(std::string_view reply);
// Whether it is an answer to that parameter, small letters like large ones; to another one.
bool answers_parameter(std::string_view reply, std::string_view pid);
bool answers_another(std::string_view reply, std::string_view pid);

// The answer itself, without header, checksum and the bytes that fill up a CAN frame; empty when
// the reply is none, or not as long as its parameter's answers are (SAE J1979).
std::string_view answer_in(std::string_view reply);

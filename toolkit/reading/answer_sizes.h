// How long the answers of each service are: the only table of how many digits of a line belong to
// an answer (SAE J1979, ISO 15031-5).
#pragma once

#include "constantes.h"

#include <optional>
#include <string_view>

// Data bytes of a service 01 answer, after the PID; nothing if their number varies.
std::optional<std::size_t> parameter_bytes(unsigned pid);

// Digits of the complete answer that begins like this, including its service byte. Nothing if the
// table does not know it: then all digits belong to it.
std::optional<std::size_t> answer_digits(std::string_view data, bus_form bus);

// Digits of the longest message of a single frame, and of an older bus's.
inline constexpr std::size_t LONGEST_FRAME_DIGITS = 14;
// Of the first frame of a longer message.
inline constexpr std::size_t FIRST_FRAME_DIGITS = 12;
// Digits before the codes of services 03, 07 and 0A on CAN: the service and the count.
inline constexpr std::size_t CODES_HEAD_DIGITS = 4;
inline constexpr std::size_t CODE_DIGITS = 4;

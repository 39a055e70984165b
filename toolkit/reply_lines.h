// How a reply falls into lines, and where the data of a line begins. Shared by the readers of
// masks, codes and identification numbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

// The lines of a reply that carry something, without blanks: the prompt, line feeds and stray NULs
// (an adapter may insert them) are noise, and search and bus-initialisation notices
// ("SEARCHING...", "BUS INIT: ...OK") are left out, also when data follows them on their line.
std::vector<std::string> reply_lines(std::string_view reply);

// Whether `marker` stands where data begins behind a 29-bit CAN header (ISO 15765-4: eight digits,
// then a two-digit byte count), and `other` does not stand where data begins behind a three-byte
// header.
bool marker_behind_29_bit_header(std::string_view line, std::string_view marker,
                                 std::string_view other);

// Whether a spaceless line carries a CAN header, of either length, in front of the marker.
bool has_can_header(std::string_view line, std::string_view marker);

// Whether a spaceless line carries a 29-bit CAN header, as far as the answers to "01 00", "01 01",
// "01 20" and "01 30" tell it.
bool has_29_bit_header(std::string_view line);

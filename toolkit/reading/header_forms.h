// What precedes the data of a line: the header of the bus, or nothing with headers off (ISO
// 15765-4, ISO 9141-2, ISO 14230-4, SAE J1850).
#pragma once

#include "constantes.h"

#include <optional>
#include <string>
#include <string_view>

enum class header_form { none, can_11, can_29, three_bytes, four_bytes };

bool is_can(header_form form);
bus_form bus_of(header_form form); // unknown without a header

// A spaceless line of capital hex digits, in two parts. The byte count or frame number that
// follows a CAN header is still part of the data.
struct headed_line {
    header_form form = header_form::none;
    std::string_view header;
    std::string_view data;
};

// `answer`: the start of an answer to the request. Nothing if the data of the line cannot be found.
std::optional<headed_line> behind_header(std::string_view line, std::string_view answer);

// "Engine", "Transmission" or "ECU=" and digits of the header; empty without a header. For 29 bits
// these digits are deliberately the tester's.
std::string unit_name(const headed_line& line);

// The address of the sending unit: "7E8" for 11 bits, else one byte; empty without a header.
std::string unit_address(header_form form, std::string_view header);

// The names for the last byte of a unit's address (SAE J1979).
std::string unit_name_of_address(std::string_view address, std::string_view shown_otherwise);

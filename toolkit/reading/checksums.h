// The checksum that an adapter prints after a message of an older bus, with headers on.
#pragma once

#include <string_view>

// Whether the last byte of a message in hex digits, header included, is the checksum of the other
// bytes: their sum (ISO 9141-2, ISO 14230-2) or the CRC of SAE J1850.
bool ends_with_checksum(std::string_view message);

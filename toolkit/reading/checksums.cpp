#include "checksums.h"

#include "hex_digits.h"

#include <cstdint>

namespace {

constexpr std::uint8_t J1850_POLYNOMIAL = 0x1D;

std::uint8_t j1850_step(std::uint8_t crc, std::uint8_t byte) {
    crc = static_cast<std::uint8_t>(crc ^ byte);
    for (int bit = 0; bit < 8; ++bit)
        crc = static_cast<std::uint8_t>((crc & 0x80) ? crc << 1 ^ J1850_POLYNOMIAL : crc << 1);
    return crc;
}

} // namespace

bool ends_with_checksum(std::string_view message) {
    if (message.size() < 4 || message.size() % 2 != 0)
        return false;
    std::uint8_t sum = 0, crc = 0xFF;
    const std::size_t last = message.size() - 2;
    for (std::size_t at = 0; at < last; at += 2) {
        const auto byte = static_cast<std::uint8_t>(hex_value(message.substr(at, 2)));
        sum = static_cast<std::uint8_t>(sum + byte);
        crc = j1850_step(crc, byte);
    }
    const unsigned printed = hex_value(message.substr(last));
    return printed == sum || printed == static_cast<std::uint8_t>(crc ^ 0xFF);
}

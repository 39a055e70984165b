#include "request_reader.h"

#include "hex_text.h"

#include <algorithm>

namespace {

constexpr std::size_t LONGEST_REQUEST = 16; // digits

} // namespace

std::string plain_command(std::string_view text) {
    std::string plain;
    for (const char c : text) {
        if (static_cast<unsigned char>(c) > ' ')
            plain += c >= 'a' && c <= 'z' ? char(c - 'a' + 'A') : c;
    }
    return plain;
}

command_line read_command(std::string_view text) {
    const std::string plain = plain_command(text);
    command_line read;
    if (plain.empty()) {
        read.type = command_line::kind::empty;
    } else if (plain.starts_with("AT")) {
        read.type = command_line::kind::at;
        read.at_command = plain.substr(2);
    } else if (plain.size() >= 2 && plain.size() <= LONGEST_REQUEST + 1 &&
               std::all_of(plain.begin(), plain.end(), is_hex_digit)) {
        read.type = command_line::kind::request;
        if (plain.size() % 2)
            read.expected_replies = int(hex_number(plain.substr(plain.size() - 1)));
        read.request = hex_bytes(plain.substr(0, plain.size() / 2 * 2));
    }
    return read;
}

#include "corpus_lines.h"

#include <array>
#include <charconv>
#include <fstream>
#include <stdexcept>
#include <utility>

namespace {

constexpr std::array<std::pair<char, char>, 4> NAMED{
    {{'\\', '\\'}, {'n', '\n'}, {'r', '\r'}, {'t', '\t'}}};

std::string escaped(char byte, bool last) {
    for (const auto& [name, meant] : NAMED)
        if (byte == meant)
            return {'\\', name};
    // Editors cut the blanks at the end of a line.
    if (byte >= ' ' && byte <= '~' && !(last && byte == ' '))
        return {byte};
    constexpr std::string_view DIGITS = "0123456789ABCDEF";
    const auto value = static_cast<unsigned char>(byte);
    return {'\\', 'x', DIGITS[value / 16], DIGITS[value % 16]};
}

// The byte of the escape that follows a backslash; nothing if it is not an escape.
std::pair<std::optional<char>, std::size_t> escape_at(std::string_view rest) {
    for (const auto& [name, meant] : NAMED)
        if (rest.starts_with(name))
            return {meant, 1};
    unsigned char value = 0;
    const char* const digits = rest.data() + 1;
    if (rest.size() < 3 || rest[0] != 'x' ||
        std::from_chars(digits, digits + 2, value, 16).ptr != digits + 2)
        return {};
    return {static_cast<char>(value), 3};
}

} // namespace

std::string escaped(std::string_view bytes) {
    std::string line;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        line += escaped(bytes[i], i + 1 == bytes.size());
    return line;
}

std::optional<std::string> unescaped(std::string_view line) {
    std::string bytes;
    while (!line.empty()) {
        const char next = line.front();
        line.remove_prefix(1);
        if (next != '\\') {
            bytes += next;
            continue;
        }
        const auto [byte, length] = escape_at(line);
        if (!byte)
            return std::nullopt;
        bytes += *byte;
        line.remove_prefix(length);
    }
    return bytes;
}

std::vector<std::string> inputs_of(const std::string& corpus) {
    std::ifstream file(corpus);
    std::vector<std::string> inputs;
    for (std::string line; std::getline(file, line);) {
        std::optional<std::string> input = unescaped(line);
        if (!input)
            throw std::runtime_error(corpus + ":" + std::to_string(inputs.size() + 1) +
                                     ": an escape that is not \\n, \\r, \\t, \\\\ or \\xHH");
        inputs.push_back(*std::move(input));
    }
    if (inputs.empty())
        throw std::runtime_error(corpus + ": no input");
    return inputs;
}

// The commands of the command line: what each takes and what its help says.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

enum class talks_to { car, bluetooth, nobody };

struct command_row {
    std::string_view name;
    std::size_t least, most; // arguments
    talks_to far_end;        // with nobody it reads its own options
    std::string_view synopsis;
    std::string_view summary;
    std::string_view details; // whole lines, examples among them
};

std::span<const command_row> all_commands();
// Null when there is none of that name.
const command_row* find_command(std::string_view name);

// What `kestrom --help` prints.
std::string usage_text();
// What `kestrom COMMAND --help` prints.
std::string command_help(const command_row& command);

// The commands of the command line: what each takes, what its help says, and the function that does
// it.
#pragma once

#include "command_line.h"

#include <cstddef>
#include <iosfwd>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class bundle;
class car_task;
class mac_toolies;
class user_defaults;
struct car_task_doors;

inline constexpr std::string_view HELP = "help";

// What a command without a car works with.
struct desk {
    const cli_request& asked;
    const mac_toolies& toolies;
    const bundle& resources;
    user_defaults& units; // what `toolies` reads, a copy
    std::ostream& out;
    std::ostream& err; // for the reason of a status that is not 0
};

// A command that talks to a car makes a task (`begin`); any other does its work at once and returns
// the exit status (`run`).
struct command_row {
    std::string_view name;
    std::size_t least, most; // arguments
    std::string_view arguments;
    std::string_view summary;
    std::string_view details;                    // complete lines, including examples
    void (*check)(const cli_request&) = nullptr; // throws usage_error
    int (*run)(const desk&) = nullptr;
    std::unique_ptr<car_task> (*begin)(const car_task_doors&) = nullptr;
};

std::span<const command_row> all_commands();
// Null for an unknown name.
const command_row* find_command(std::string_view name);
// False for a saved report, which needs no car.
bool talks_to_car(const cli_request& asked);
// What an option may belong to: the window, or this command.
std::vector<std::string_view> subjects_of(const command_row* command);

// What `kestrom --help` prints, or `kestrom COMMAND --help`.
std::string help_text(const command_row* command);

// The export command: turns a run log into a table beside it.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

class mac_toolies;

// LOG.gol [--txt] [--time] [--json]: LOG is a path or the name of a log in the log folder. Prints
// where the table went. Returns the exit status: 0; 1 when the log cannot be exported, with the
// reason on `err`; 2 when the arguments make no sense.
int run_export(std::span<const std::string> arguments, const mac_toolies& toolies,
               std::ostream& out, std::ostream& err);

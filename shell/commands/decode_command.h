// Commands that decode replies given on the command line: decode, vin and mode6. Each is handed its
// own arguments, prints a line per answer to `out`, or with --json an object (docs/json), and
// returns the exit status: 0, or 2 with a message on `err` when the arguments make no sense. A
// reply may write its line ends as \r and \n.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

class mac_toolies;
class user_defaults;

// REPLY... [--units metric|imperial] [--standard]: the display text, a tab and the number of each
// reply, with --standard as the standard means it where a run shows something else. The
// units go to `units`, the store that `toolies` reads; without the option they stay as they are
// there. Exit status 1 when a text is nothing that an adapter sends; the others are decoded still.
int run_decode(std::span<const std::string> arguments, const mac_toolies& toolies,
               user_defaults& units, std::ostream& out, std::ostream& err);

// REPLY: the vehicle identification number, or "N/A".
int run_vin(std::span<const std::string> arguments, const mac_toolies& toolies, std::ostream& out,
            std::ostream& err);

// ID VALUE [--standard]: a test result in hex, scaled by its unit-and-scaling identifier, with its
// unit.
int run_mode6(std::span<const std::string> arguments, const mac_toolies& toolies, std::ostream& out,
              std::ostream& err);

// The command lookup: what a trouble code means, without a car.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

class mac_toolies;

// CODE|TEXT... [--json]: the description of that code, or every code whose description holds all
// of the words. Returns the exit status: 0; 1 when nothing was found; 2 when the arguments make no
// sense.
int run_lookup(std::span<const std::string> arguments, const mac_toolies& toolies,
               std::ostream& out, std::ostream& err);

// The chart command: draws a run log file as the large chart, or as a dial. Needs a
// QGuiApplication, offscreen will do.
#pragma once

#include <iosfwd>
#include <span>
#include <string>

class bundle;
class mac_toolies;

// LOG.gol --pid PID [--pid PID] -o FILE.png [--scale N] [--dial]
// A log holds a line a sampling cycle: comma-separated reply texts, one a parameter. Draws the
// chosen parameters' curves (one or two), or with --dial the first one's dial at its last value,
// and prints the axis limits, or that value. Returns the exit status: 0; 1 when the log cannot be
// charted or the picture not be written, with the file's name and line on `err`; 2 when the
// arguments make no sense.
int run_chart(std::span<const std::string> arguments, const mac_toolies& toolies,
              const bundle& resources, std::ostream& out, std::ostream& err);

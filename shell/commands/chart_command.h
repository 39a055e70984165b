// The chart command: draws a run log file as the large chart, or as a dial. Needs a
// QGuiApplication, offscreen will do.
#pragma once

struct cli_request;
struct desk;

// A log holds a line a sampling cycle: comma-separated reply texts, one a parameter. Draws the
// chosen parameters' curves (one or two), or with --dial the first one's dial at its last value,
// and prints the axis limits, or that value. Exit status 1 when the log cannot be charted or the
// picture not be written, with the file's name and line.
int run_chart(const desk& work);
void check_chart(const cli_request& asked);

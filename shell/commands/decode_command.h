// Commands that decode replies given on the command line. A reply may write its line ends as \r and
// \n. Each prints a line per answer, or with --json an object (docs/json).
#pragma once

struct cli_request;
struct desk;

// REPLY...: the display text, a tab and the number of each reply, with --standard as the standard
// means it where a run shows something else. Exit status 1 when a text is nothing that an adapter
// sends, or holds no value; the others are decoded still.
int run_decode(const desk& work);
// A reply that ends where its data would begin.
void check_decode(const cli_request& asked);

// REPLY: the vehicle identification number, or "N/A".
int run_vin(const desk& work);

// ID VALUE: a test result in hex, scaled by its unit-and-scaling identifier, with its unit.
int run_mode6(const desk& work);
void check_mode6(const cli_request& asked);

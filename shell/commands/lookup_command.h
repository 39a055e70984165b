// The command lookup: what a trouble code means, without a car.
#pragma once

struct cli_request;
struct desk;

// CODE, or words of a description. Exit status 1 when nothing was found.
int run_lookup(const desk& work);
void check_lookup(const cli_request& asked);

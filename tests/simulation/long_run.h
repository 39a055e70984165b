// A logged run of very many cycles on the virtual clock: the memory per sample, the time per reply
// at the start and at the end, and whether the log is complete.
#pragma once

// Prints the figures; false if the log does not match the answers.
bool run_cycles(long count);

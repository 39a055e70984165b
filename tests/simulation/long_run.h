// A logged run of very many cycles on the virtual clock: what a sample takes of memory, what a
// reply takes of time at the start and at the end, and whether the log is complete.
#pragma once

// Prints the figures; false when the log is not what was answered.
bool run_cycles(long count);

// The export command: turns a run log into a table beside it.
#pragma once

struct desk;

// LOG.gol: a path or the name of a log in the log folder. Prints where the table went. Exit status
// 1 when the log cannot be exported.
int run_export(const desk& work);

// An adapter on two file descriptors: standard input and output, or a pseudo-terminal.
#pragma once

#include "adapter.h"

// Until the input ends and the last reply has left, or a fault closes. False when writing failed.
bool serve_descriptors(adapter& served, int input, int output);

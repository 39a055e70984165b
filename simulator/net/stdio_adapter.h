// An adapter on two file descriptors: standard input and output, or a pseudo-terminal.
#pragma once

#include "adapter.h"

// Runs until the input ends and the last reply is sent, or a fault closes. False if writing failed.
bool serve_descriptors(adapter& served, int input, int output);

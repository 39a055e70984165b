// The virtual adapter on two file descriptors: standard input and output, or a pty for a Bluetooth
// test.
#pragma once

#include "virtual_adapter.h"

// Until the input ends and the last reply has left, or a fault closes. False when writing failed.
bool serve_descriptors(virtual_adapter& adapter, int input, int output);

// The command live: runs the live-data screen without a display and prints a line of values for
// each cycle as it completes.
#pragma once

#include <memory>

class car_task;
struct car_task_doors;
struct cli_request;

std::unique_ptr<car_task> begin_live(const car_task_doors& doors);
void check_live(const cli_request& asked);

// The commands codes and clear, on the trouble-codes screen.
#pragma once

#include <memory>

class car_task;
struct car_task_doors;
struct cli_request;

std::unique_ptr<car_task> begin_codes(const car_task_doors& doors);
void check_clear(const cli_request& asked);

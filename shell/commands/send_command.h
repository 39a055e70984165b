// The command send, on the console.
#pragma once

#include <memory>

class car_task;
struct car_task_doors;
struct cli_request;

std::unique_ptr<car_task> begin_send(const car_task_doors& doors);
void check_send(const cli_request& asked);

// The command pids: what parameters the car supports.
#pragma once

#include <memory>

class car_task;
struct car_task_doors;

std::unique_ptr<car_task> begin_pids(const car_task_doors& doors);

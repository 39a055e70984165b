// The command report: the whole report of a car, or of a file that holds one.
#pragma once

#include <memory>

class car_task;
struct car_task_doors;
struct cli_request;
struct desk;

void check_report(const cli_request& asked);
std::unique_ptr<car_task> begin_report(const car_task_doors& doors);
// With --open or --compare.
int run_saved_report(const desk& work);

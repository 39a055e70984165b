// What the commands do: the functions that the rows in commands.cpp name. `run_` does the work at
// once and returns the exit status, `begin_` makes a task for a car, `check_` throws usage_error
// for what only this command refuses. Output is lines, or with --json an object (docs/json).
#pragma once

#include <memory>

class bluez_devices;
class car_task;
struct car_task_doors;
struct cli_request;
struct desk;

// On the trouble-codes screen, the live-data screen and the console.
void check_clear(const cli_request& asked);
std::unique_ptr<car_task> begin_codes(const car_task_doors& doors); // and clear
void check_live(const cli_request& asked);
std::unique_ptr<car_task> begin_live(const car_task_doors& doors);
std::unique_ptr<car_task> begin_pids(const car_task_doors& doors);
void check_send(const cli_request& asked);
std::unique_ptr<car_task> begin_send(const car_task_doors& doors);

// The display text, a tab and the number of each reply. 1 if one is not an adapter reply or holds
// no value; the others are still decoded. A reply may write its line ends as \r and \n.
void check_decode(const cli_request& asked);
int run_decode(const desk& work);
// The vehicle identification number, or "N/A".
int run_vin(const desk& work);
// A test result in hex, scaled by its unit-and-scaling identifier, with its unit.
void check_mode6(const cli_request& asked);
int run_mode6(const desk& work);

// Draws the parameters' curves, or the dial of the first at its last value, and prints the limits
// of the axes, or that value. 1 if the log or the picture failed, with the file's name and line.
// Needs a QGuiApplication, possibly offscreen.
void check_chart(const cli_request& asked);
int run_chart(const desk& work);
// Prints the path of the table.
int run_export(const desk& work);

// The whole report of a car, or with --open or --compare of files that hold one.
void check_report(const cli_request& asked);
std::unique_ptr<car_task> begin_report(const car_task_doors& doors);
int run_saved_report(const desk& work);

// 1 when nothing was found.
void check_lookup(const cli_request& asked);
int run_lookup(const desk& work);

// Searches until the search ends, or for the given time. Needs an application object and runs its
// event loop. 1 if Bluetooth cannot be used.
int run_bluetooth_scan(const desk& work);
// The serial ports that are there, with the names of their cables.
int run_serial_ports(const desk& work);
int scan_devices(const desk& work, bluez_devices& devices, double seconds);

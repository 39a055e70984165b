// The command bluetooth-scan: which Bluetooth devices are there.
#pragma once

#include "bluez_devices.h"

#include <iosfwd>
#include <vector>

class bundle;

// Searches for `seconds` at most and prints what is paired and what was found. Needs a running
// application object; spins its event loop. Exit status 0 once a search was made, 1 with a reason
// on `err` when Bluetooth cannot be used.
int run_bluetooth_scan(bluez_devices& devices, const bundle& texts, double seconds, bool json,
                       std::ostream& out, std::ostream& err);

// The command bluetooth-scan: which Bluetooth devices are there.
#pragma once

class bluez_devices;
struct desk;

// Searches until the search ends, or as long as was asked, and prints what is paired and what was
// found. Needs a running application object; spins its event loop. Exit status 1 when Bluetooth
// cannot be used.
int run_bluetooth_scan(const desk& work);
int scan_devices(const desk& work, bluez_devices& devices, double seconds);

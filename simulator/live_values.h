// Service 01 values: encodes sensor values as SAE J1979 defines.
#pragma once

#include "drive_cycle.h"

// What the values are derived from: the engine, and what counts from the last clearing of codes.
struct car_moment {
    engine_state engine;
    double km_since_clear = 0;
    double lamp_km = 0; // with the lamp on
    double odometer_km = 0;
    int warm_ups = 0;
};

// Data bytes of a PID; 0 for an unknown one.
int pid_length(int pid);
bool has_live_value(int pid);
// Only for a PID with a live value.
byte_string live_value(int pid, const car_moment& moment);

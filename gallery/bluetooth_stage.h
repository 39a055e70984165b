// The dialog that picks a Bluetooth adapter, with a fake Bluetooth service.
#pragma once

class stage;

struct bluetooth_surroundings {
    bool service = true;
    bool adapter = true;
    bool devices = false;
    bool connect = false; // to the first device
    bool refuse = false;
};

void show_device_chooser(stage& on, const bluetooth_surroundings& there);

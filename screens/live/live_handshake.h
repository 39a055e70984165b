// The handshake of the live-data screen.
#pragma once

#include "adapter_handshake.h"

class live_handshake final : public adapter_handshake {
  public:
    explicit live_handshake(obd_screen& screen);
    std::string check_initial_car_reply() override;
};

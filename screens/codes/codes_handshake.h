// The handshake of the trouble-codes screen.
#pragma once

#include "adapter_handshake.h"

class codes_handshake final : public adapter_handshake {
  public:
    explicit codes_handshake(obd_screen& screen);
    std::string check_initial_car_reply() override;
};

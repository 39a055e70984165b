// The handshake as the trouble-codes screen runs it.
#pragma once

#include "adapter_handshake.h"

class codes_handshake final : public adapter_handshake {
  public:
    explicit codes_handshake(obd_screen& screen);
    std::string check_initial_car_reply() override;
};

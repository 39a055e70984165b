// Alerts as modal message boxes over the active window.
#pragma once

#include "alerts.h"

class message_box_alerts final : public alerts {
  public:
    using alerts::alerts;
    void beep() override;

  protected:
    int run_modal(const alert_request& request) override;
};

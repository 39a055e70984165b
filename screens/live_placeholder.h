// Stands where the live-data screen will be. It talks to nobody.
#pragma once

#include "screen_controller.h"

#include <memory>

class Ks_lite_delegate;

class live_placeholder final : public screen_controller {
  public:
    explicit live_placeholder(Ks_lite_delegate& delegate);
    ~live_placeholder() override;
    QWidget* view() override { return root_.get(); }

  private:
    std::unique_ptr<QWidget> root_;
};

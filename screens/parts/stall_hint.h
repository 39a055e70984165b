// Beside the busy indicator: how long the adapter has owed a reply, from five seconds on, and the
// button that reconnects, while nothing arrives.
#pragma once

#include "notification_center.h"

#include <QLabel>
#include <QTimer>

class Ks_lite_delegate;
class QPushButton;

class stall_hint final : public QLabel {
  public:
    stall_hint(Ks_lite_delegate& delegate, QWidget* parent);
    ~stall_hint() override;

    // Placed beside this label.
    QPushButton* reconnect() const { return reconnect_; }
    // Checks the link and the clock; the timer calls it every second.
    void refresh();

  private:
    Ks_lite_delegate& delegate_;
    QString text_;
    QPushButton* reconnect_;
    QTimer timer_;
    notification_center::observer_id observer_ = 0;
};

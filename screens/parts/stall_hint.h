// Beside the busy indicator: since when the adapter owes a reply, once that is longer than five
// seconds, and the button that brings a lost link back, while nothing comes from the adapter.
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

    // Stands beside this label.
    QPushButton* reconnect() const { return reconnect_; }
    // Looks at the link and the clock; the timer does so each second.
    void refresh();

  private:
    Ks_lite_delegate& delegate_;
    QString text_;
    QPushButton* reconnect_;
    QTimer timer_;
    notification_center::observer_id observer_ = 0;
};

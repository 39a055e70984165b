// Beside the busy indicator: since when the adapter owes a reply, once that is longer than five
// seconds. It changes nothing else.
#pragma once

#include <QLabel>
#include <QTimer>

class Ks_lite_delegate;

class stall_hint final : public QLabel {
  public:
    stall_hint(Ks_lite_delegate& delegate, QWidget* parent);

    // Looks at the clock; the timer does so each second.
    void refresh();

  private:
    Ks_lite_delegate& delegate_;
    QString text_;
    QTimer timer_;
};

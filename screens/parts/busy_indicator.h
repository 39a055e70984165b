// The indeterminate busy indicator ("waity"): a ring of dots. Its screen decides when it is
// visible; it turns only while something is awaited; otherwise the dots are equal.
#pragma once

#include <QTimer>
#include <QWidget>

#include <functional>

class busy_indicator final : public QWidget {
  public:
    busy_indicator(QWidget* parent, std::function<bool()> awaiting);

    QSize sizeHint() const override { return {24, 24}; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    std::function<bool()> awaiting_;
    QTimer timer_;
    int phase_ = 0;
    bool shown_turning_ = false;
};

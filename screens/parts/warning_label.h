// A permanent warning: bold, with an amber bar before it.
#pragma once

#include <QLabel>
#include <QPainter>

class warning_label final : public QLabel {
  public:
    explicit warning_label(QWidget* parent) : QLabel(parent) {
        setTextFormat(Qt::PlainText);
        setContentsMargins(GAP + BAR, 0, 0, 0);
        QFont heavy = font();
        heavy.setWeight(QFont::DemiBold);
        setFont(heavy);
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QLabel::paintEvent(event);
        QPainter(this).fillRect(0, 0, BAR, height(), QColor(240, 140, 0));
    }

  private:
    static constexpr int BAR = 4, GAP = 8;
};

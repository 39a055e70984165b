// A switch of the rail: icon above word. The chosen one has a bar at its side and a bolder word.
#pragma once

#include <QPainter>
#include <QToolButton>

class rail_button final : public QToolButton {
  public:
    rail_button(const QIcon& icon, const QString& text, QWidget* parent) : QToolButton(parent) {
        setIcon(icon);
        setIconSize({28, 28});
        setText(text);
        setAccessibleName(QString(text).remove(u'&'));
        setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
        setAutoRaise(true);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        setMinimumHeight(64);
        connect(this, &QToolButton::toggled, this, [this](bool on) { set_weight(on); });
    }

    // As wide as when chosen, so that nothing moves.
    QSize sizeHint() const override {
        QFont heavy = font();
        heavy.setWeight(QFont::DemiBold);
        const int word = QFontMetrics(heavy).size(Qt::TextShowMnemonic, text()).width();
        return QToolButton::sizeHint().expandedTo({word + 16, 56});
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QToolButton::paintEvent(event);
        if (!isChecked())
            return;
        QPainter painter(this);
        painter.fillRect(0, 8, 3, height() - 16, palette().color(QPalette::Highlight));
    }

  private:
    void set_weight(bool chosen) {
        QFont face = font();
        face.setWeight(chosen ? QFont::DemiBold : QFont::Normal);
        setFont(face);
    }
};

#include "fact_card.h"

#include "chrome.h"
#include "display_text.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace {
constexpr qsizetype LONGEST_VALUE = 80;
}

class fact_card::lamp final : public QWidget {
  public:
    explicit lamp(QWidget* parent) : QWidget(parent) { setFixedSize(20, 20); }
    bool lit = false;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF bulb(3, 3, 14, 14);
        if (lit) {
            QRadialGradient glow(bulb.center(), 10);
            glow.setColorAt(0.5, QColor(255, 170, 30, 150));
            glow.setColorAt(1, QColor(255, 170, 30, 0));
            painter.setPen(Qt::NoPen);
            painter.setBrush(glow);
            painter.drawEllipse(rect());
        }
        QRadialGradient glass(bulb.center() - QPointF(2, 2), 9);
        glass.setColorAt(0, lit ? QColor(255, 224, 150) : QColor(120, 120, 120));
        glass.setColorAt(1, lit ? QColor(240, 140, 0) : QColor(70, 70, 70));
        painter.setPen(QPen(QColor(40, 40, 40), 1));
        painter.setBrush(glass);
        painter.drawEllipse(bulb);
    }
};

fact_card::fact_card(const QString& value_name, const QString& caption, QWidget* parent)
    : QFrame(parent), caption_(new QLabel(caption, this)), value_(new QLabel(this)),
      lamp_(new lamp(this)) {
    setFrameShape(QFrame::StyledPanel);
    value_->setObjectName(value_name);
    value_->setTextFormat(Qt::PlainText);
    value_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value_->setWordWrap(true);
    QFont strong = value_->font();
    strong.setWeight(QFont::DemiBold);
    value_->setFont(strong);
    caption_->setForegroundRole(QPalette::PlaceholderText);

    auto* value_row = new QHBoxLayout;
    value_row->setSpacing(GRID);
    value_row->addWidget(lamp_);
    value_row->addWidget(value_, 1);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(GRID, GRID / 2, GRID, GRID / 2);
    column->setSpacing(2);
    column->addWidget(caption_);
    column->addLayout(value_row);
    column->addStretch(1);
    lamp_->hide();
    // Whatever an adapter says of itself, the cards keep their size.
    setFixedHeight(2 * GRID + 3 * fontMetrics().lineSpacing() + 4);
    value_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void fact_card::set_value(const std::string& text) {
    const QString whole = display_text(text).simplified();
    value_->setText(whole.size() > LONGEST_VALUE ? whole.left(LONGEST_VALUE) + QChar(0x2026)
                                                 : whole);
    value_->setToolTip(QStringLiteral("<span>%1</span>").arg(whole.left(4000).toHtmlEscaped()));
    value_->setAccessibleName(caption_->text() + QStringLiteral(": ") + value_->text());
    caption_->show();
    value_->setForegroundRole(QPalette::WindowText);
}

void fact_card::set_resting(const std::string& text) {
    value_->setText(display_text(text));
    value_->setAccessibleName(text.empty() ? caption_->text() : value_->text());
    value_->setToolTip(QString());
    caption_->setVisible(text.empty());
    value_->setForegroundRole(QPalette::PlaceholderText);
    hide_lamp();
}

void fact_card::show_lamp(bool lit) {
    lamp_->lit = lit;
    lamp_->show();
    lamp_->update();
}

void fact_card::hide_lamp() {
    lamp_->hide();
}

#include "fact_card.h"

#include "chrome.h"
#include "display_text.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

namespace {
constexpr qsizetype LONGEST_VALUE = 80;
constexpr int LAMP_SIDE = 16;

void set_weight(QLabel* label, QFont::Weight weight) {
    QFont font = label->font();
    font.setWeight(weight);
    label->setFont(font);
}

} // namespace

class fact_card::lamp final : public QWidget {
  public:
    explicit lamp(QWidget* parent) : QWidget(parent) { setFixedSize(LAMP_SIDE, LAMP_SIDE); }
    bool lit = false;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF bulb(2.5, 2.5, 11, 11);
        if (lit) {
            QRadialGradient glow(bulb.center(), 8);
            glow.setColorAt(0.5, QColor(255, 170, 30, 150));
            glow.setColorAt(1, QColor(255, 170, 30, 0));
            painter.setPen(Qt::NoPen);
            painter.setBrush(glow);
            painter.drawEllipse(rect());
        }
        QRadialGradient glass(bulb.center() - QPointF(1.5, 1.5), 7);
        glass.setColorAt(0, lit ? QColor(255, 224, 150) : QColor(120, 120, 120));
        glass.setColorAt(1, lit ? QColor(240, 140, 0) : QColor(70, 70, 70));
        painter.setPen(QPen(QColor(40, 40, 40), 1));
        painter.setBrush(glass);
        painter.drawEllipse(bulb);
    }
};

fact_card::fact_card(const QString& value_name, const QString& caption, QWidget* parent)
    : QFrame(parent), own_caption_(caption), caption_(new QLabel(caption, this)),
      value_(new QLabel(this)), lamp_(new lamp(this)) {
    setFrameShape(QFrame::StyledPanel);
    value_->setObjectName(value_name);
    value_->setTextFormat(Qt::PlainText);
    value_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    value_->setWordWrap(true);
    value_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    caption_->setForegroundRole(QPalette::PlaceholderText);
    caption_->setTextFormat(Qt::PlainText);

    auto* value_row = new QHBoxLayout;
    value_row->setSpacing(GRID);
    value_row->addWidget(lamp_, 0, Qt::AlignTop);
    value_row->addWidget(value_, 1, Qt::AlignTop);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(GRID, GRID, GRID, GRID / 2);
    column->setSpacing(GRID / 2);
    column->addWidget(caption_);
    column->addLayout(value_row);
    column->addStretch(1);
    lamp_->hide();
    // The cards keep their size, whatever an adapter reports.
    setFixedHeight(2 * (GRID + frameWidth()) + 3 * fontMetrics().lineSpacing());
    value_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void fact_card::set_value(const std::string& text) {
    show_value(own_caption_, display_text(text).simplified());
}

void fact_card::set_labelled_value(const std::string& text) {
    const QString whole = display_text(text).simplified();
    const qsizetype colon = whole.indexOf(QLatin1String(": "));
    if (colon < 0)
        show_value(own_caption_, whole);
    else
        show_value(whole.left(colon + 1), whole.mid(colon + 2));
}

void fact_card::show_value(const QString& caption, const QString& value) {
    caption_->setText(caption);
    caption_->show();
    value_->setText(value.size() > LONGEST_VALUE ? value.left(LONGEST_VALUE) + QChar(0x2026)
                                                 : value);
    value_->setToolTip(QStringLiteral("<span>%1</span>").arg(value.left(4000).toHtmlEscaped()));
    const QString colon = caption.endsWith(u':') ? QString() : QStringLiteral(":");
    value_->setAccessibleName(caption + colon + u' ' + value_->text());
    set_weight(value_, QFont::DemiBold);
    value_->setForegroundRole(QPalette::WindowText);
}

void fact_card::set_resting(const std::string& text) {
    caption_->setText(own_caption_);
    caption_->setVisible(text.empty());
    value_->setText(display_text(text));
    value_->setAccessibleName(text.empty() ? own_caption_ : value_->text());
    value_->setToolTip(QString());
    set_weight(value_, QFont::Normal);
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

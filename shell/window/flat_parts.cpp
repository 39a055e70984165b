#include "flat_parts.h"

#include "chrome.h"

#include <QPainter>
#include <QStyleOption>

namespace {

constexpr double RADIUS = 6;
constexpr int ARROW = 4;
constexpr int TITLE_GAP = 3;

QColor mixed(const QColor& a, const QColor& b, double of_b) {
    const auto part = [of_b](int x, int y) { return static_cast<int>(x + (y - x) * of_b + 0.5); };
    return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

QColor line_of(const QPalette& palette) {
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.25);
}

void draw_rounded(QPainter& painter, const QRect& place, const QColor& line, const QBrush& fill) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(line, 1));
    painter.setBrush(fill);
    painter.drawRoundedRect(QRectF(place).adjusted(0.5, 0.5, -0.5, -0.5), RADIUS, RADIUS);
    painter.restore();
}

void draw_button(QPainter& painter, const QStyleOption& option, bool is_default) {
    const QPalette& palette = option.palette;
    const QColor ground = palette.color(QPalette::Button),
                 text = palette.color(QPalette::ButtonText);
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    const bool under_mouse = option.state & QStyle::State_MouseOver;
    const double shade = !(option.state & QStyle::State_Enabled) ? 0
                         : down                                  ? 0.16
                         : under_mouse                           ? 0.09
                                                                 : 0.04;
    const bool marked = is_default || option.state & QStyle::State_HasFocus;
    draw_rounded(painter, option.rect,
                 marked ? palette.color(QPalette::Highlight) : line_of(palette),
                 mixed(ground, text, shade));
}

void draw_flat_button(QPainter& painter, const QStyleOption& option) {
    QColor ground = option.palette.color(QPalette::WindowText);
    const bool down = option.state & (QStyle::State_Sunken | QStyle::State_On);
    if (!down && !(option.state & QStyle::State_MouseOver && option.state & QStyle::State_Enabled))
        return;
    ground.setAlphaF(down ? 0.12F : 0.06F);
    QColor line = ground;
    line.setAlphaF(down ? 0.25F : 0.0F);
    draw_rounded(painter, option.rect, line, ground);
}

void draw_check_mark(QPainter& painter, const QStyleOption& option) {
    static const QIcon on = picture_icon(QStringLiteral(":/kestrom/images/chk_on.svg"));
    static const QIcon off = picture_icon(QStringLiteral(":/kestrom/images/chk_off.svg"));
    painter.save();
    if (!(option.state & QStyle::State_Enabled))
        painter.setOpacity(0.45);
    (option.state & QStyle::State_On ? on : off).paint(&painter, option.rect);
    painter.restore();
}

} // namespace

bool flat_parts::draw(QStyle::PrimitiveElement part, const QStyleOption& option,
                      QPainter& painter) {
    const QPalette& palette = option.palette;
    switch (part) {
    case QStyle::PE_Frame:
        draw_rounded(painter, option.rect, line_of(palette), Qt::NoBrush);
        return true;
    case QStyle::PE_FrameGroupBox: // below its title, as the style below lays it out
        draw_rounded(painter,
                     option.rect.adjusted(0, option.fontMetrics.height() + TITLE_GAP, 0, 0),
                     line_of(palette), Qt::NoBrush);
        return true;
    case QStyle::PE_PanelLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
            frame && frame->lineWidth <= 0)
            return false;
        draw_rounded(painter, option.rect,
                     option.state & QStyle::State_HasFocus ? palette.color(QPalette::Highlight)
                                                           : line_of(palette),
                     palette.color(QPalette::Base));
        return true;
    case QStyle::PE_PanelButtonCommand: {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
        draw_button(painter, option,
                    button && button->features & QStyleOptionButton::DefaultButton);
        return true;
    }
    case QStyle::PE_PanelButtonTool:
        draw_flat_button(painter, option);
        return true;
    case QStyle::PE_IndicatorCheckBox:
        draw_check_mark(painter, option);
        return true;
    default:
        return false;
    }
}

void flat_parts::draw_heading(const QStyleOptionHeader& option, QPainter& painter) {
    painter.fillRect(option.rect, option.palette.color(QPalette::Window));
    painter.fillRect(QRect(option.rect.bottomLeft(), QSize(option.rect.width(), 1)),
                     line_of(option.palette));
}

void flat_parts::draw_combo_box(const QStyleOption& option, QPainter& painter) {
    draw_button(painter, option, false);
    const QPointF tip(option.direction == Qt::RightToLeft ? option.rect.left() + 12
                                                          : option.rect.right() - 12,
                      option.rect.center().y() + ARROW / 2.0 + 0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(option.palette.color(QPalette::ButtonText), 1.75, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QPointF arrow[] = {tip + QPointF(-ARROW, -ARROW), tip, tip + QPointF(ARROW, -ARROW)};
    painter.drawPolyline(arrow, 3);
    painter.restore();
}

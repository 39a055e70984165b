#include "thumbnail_strip.h"

#include "canvas.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace {

const QColor CELL_GROUND = QColor::fromRgbF(0.92941176f, 0.95294118f, 0.99607843f, 0.88f);
constexpr int FRAME = 3;

QColor laid_over(const QColor& ground, const QColor& shade) {
    QImage pixel(1, 1, QImage::Format_RGB32);
    pixel.fill(ground);
    QPainter(&pixel).fillRect(pixel.rect(), shade);
    return pixel.pixelColor(0, 0);
}

} // namespace

thumbnail_strip::thumbnail_strip(QWidget* parent) : QWidget(parent), spoken(QAccessible::List) {
    setObjectName(QStringLiteral("thumbiesMtrx"));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent); // cells cover all of it
}

void thumbnail_strip::renew(const std::vector<QString>& names) {
    cells_.clear();
    for (const QString& name : names)
        cells_.push_back({name, {}});
    selected_.clear();
    if (!cells_.empty())
        selected_.insert(0);
    anchor_ = current_ = 0;
    set_cell_size(cell_size_);
    setAccessibleDescription(names.empty() ? QString() : names.front());
}

void thumbnail_strip::set_cell_size(QSize size) {
    cell_size_ = size;
    setFixedSize(size.width() * cells(), size.height());
    update();
}

void thumbnail_strip::set_picture(int cell, const QImage& picture) {
    const QSize pixels = cell_size_ * devicePixelRatioF();
    QImage& shown = cells_.at(static_cast<std::size_t>(cell)).picture;
    const bool only_lower = picture.width() == pixels.width() &&
                            picture.height() >= pixels.height() && !pixels.isEmpty();
    if (only_lower)
        squeeze(picture, pixels.height(), shown);
    else
        shown = picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    shown.setDevicePixelRatio(devicePixelRatioF());
    update(rect_of(cell));
}

QColor thumbnail_strip::ground() const {
    return laid_over(palette().color(QPalette::Window), CELL_GROUND);
}

QRect thumbnail_strip::rect_of(int cell) const {
    return {QPoint(cell * cell_size_.width(), 0), cell_size_};
}

int thumbnail_strip::cell_at(QPoint position) const {
    const int cell = position.x() / std::max(cell_size_.width(), 1);
    return position.x() >= 0 && cell < cells() ? cell : -1;
}

bool thumbnail_strip::in_sight(int cell) const {
    return isVisible() && visibleRegion().intersects(rect_of(cell));
}

void thumbnail_strip::choose(const std::set<int>& these) {
    std::set<int> there;
    for (const int cell : these)
        if (cell >= 0 && cell < cells())
            there.insert(cell);
    if (there.empty())
        return;
    selected_ = there;
    anchor_ = *there.begin();
    finish_choice(anchor_);
}

void thumbnail_strip::extend_to(int cell) {
    selected_.clear();
    for (int at = std::min(anchor_, cell); at <= std::max(anchor_, cell); ++at)
        selected_.insert(at);
    finish_choice(cell);
}

void thumbnail_strip::toggle(int cell) {
    if (!selected_.contains(cell))
        selected_.insert(cell);
    else if (selected_.size() > 1)
        selected_.erase(cell);
    anchor_ = cell;
    finish_choice(cell);
}

void thumbnail_strip::finish_choice(int current) {
    current_ = current;
    update();
    if (QScrollArea* around = area())
        around->ensureVisible(rect_of(current).center().x(), 0, cell_size_.width() / 2 + 1, 0);
    QStringList names;
    for (const int cell : selected_)
        names.append(cells_[static_cast<std::size_t>(cell)].name);
    setAccessibleDescription(names.join(QStringLiteral(", ")));
    if (chosen)
        chosen();
}

void thumbnail_strip::mousePressEvent(QMouseEvent* event) {
    const int cell = cell_at(event->position().toPoint());
    if (cell < 0 || event->button() != Qt::LeftButton)
        return;
    if (event->modifiers().testFlag(Qt::ShiftModifier))
        extend_to(cell);
    else if (event->modifiers().testFlag(Qt::ControlModifier))
        toggle(cell);
    else
        choose({cell});
}

void thumbnail_strip::keyPressEvent(QKeyEvent* event) {
    int target = current_;
    switch (event->key()) {
    case Qt::Key_Left:
        --target;
        break;
    case Qt::Key_Right:
        ++target;
        break;
    case Qt::Key_Home:
        target = 0;
        break;
    case Qt::Key_End:
        target = cells() - 1;
        break;
    case Qt::Key_Space:
        if (current_ < cells())
            toggle(current_);
        return;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
    if (target < 0 || target >= cells())
        return;
    if (event->modifiers().testFlag(Qt::ShiftModifier)) {
        extend_to(target);
    } else if (event->modifiers().testFlag(Qt::ControlModifier)) {
        current_ = target; // to toggle it with the space bar
        update();
    } else {
        choose({target});
    }
}

void thumbnail_strip::moveEvent(QMoveEvent*) {
    if (exposed)
        exposed();
}

void thumbnail_strip::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    update();
}

QScrollArea* thumbnail_strip::area() const {
    for (QWidget* above = parentWidget(); above; above = above->parentWidget())
        if (auto* found = qobject_cast<QScrollArea*>(above))
            return found;
    return nullptr;
}

// One notch of the wheel, in either axis, is one cell.
void thumbnail_strip::wheelEvent(QWheelEvent* event) {
    constexpr int NOTCH = 120;
    QScrollArea* const around = area();
    if (!around)
        return;
    const int turned = event->angleDelta().x() + event->angleDelta().y();
    QScrollBar* const bar = around->horizontalScrollBar();
    bar->setValue(bar->value() - turned * cell_size_.width() / NOTCH);
    event->accept();
}

bool thumbnail_strip::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || !describe_cell)
        return QWidget::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    const int cell = cell_at(help->pos());
    const QString words = cell < 0 ? QString() : describe_cell(cell) + u'\n' + toolTip();
    QToolTip::showText(help->globalPos(), words, this, cell < 0 ? QRect() : rect_of(cell));
    return true;
}

void thumbnail_strip::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    for (int cell = 0; cell < cells(); ++cell) {
        const QRect place = rect_of(cell);
        if (!event->region().intersects(place))
            continue;
        const QImage& picture = cells_[static_cast<std::size_t>(cell)].picture;
        if (picture.isNull())
            painter.fillRect(place, ground());
        else
            painter.drawImage(place, picture); // includes its background
        if (selected_.contains(cell)) {
            painter.setPen(QPen(palette().color(QPalette::Highlight), FRAME));
            painter.drawRect(
                QRectF(place).adjusted(FRAME / 2.0, FRAME / 2.0, -FRAME / 2.0, -FRAME / 2.0));
        }
        if (hasFocus() && cell == current_) {
            painter.setPen(QPen(Qt::white, 1, Qt::DotLine));
            painter.drawRect(place.adjusted(FRAME + 1, FRAME + 1, -FRAME - 2, -FRAME - 2));
        }
    }
}

#include "background_picture.h"

#include <QGridLayout>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>

#include <chrono>

namespace {

constexpr double OPACITY = 0.92;
const QColor GROUND(31, 36, 44);
// The window comes first, then its picture: a quarter of the start, 8 ms.
constexpr std::chrono::milliseconds ONE_FRAME{16};

// The drawing on its background. It covers the whole picture; what does not fit is cropped evenly.
QImage painted_scene(QSize pixels) {
    QSvgRenderer drawing(QStringLiteral(":/kestrom/images/background.svg"));
    QImage scene(pixels, QImage::Format_RGB32);
    scene.fill(GROUND);
    const QSizeF whole =
        QSizeF(drawing.defaultSize()).scaled(pixels, Qt::KeepAspectRatioByExpanding);
    QRectF place(QPointF(0, 0), whole);
    place.moveCenter(QRectF(scene.rect()).center());
    QPainter painter(&scene);
    painter.setOpacity(OPACITY);
    drawing.render(&painter, place);
    return scene;
}

} // namespace

background_picture::background_picture(const QString& hint, QWidget* parent)
    : QWidget(parent), hint_(new QLabel(hint, this)) {
    setAttribute(Qt::WA_OpaquePaintEvent); // nothing beneath is visible
    later_.setSingleShot(true);
    later_.setInterval(ONE_FRAME);
    later_.callOnTimeout(this, &background_picture::paint_scene);
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setWordWrap(true);
    QPalette light = hint_->palette();
    light.setColor(QPalette::WindowText, QColor(214, 220, 228));
    hint_->setPalette(light);
    auto* column = new QVBoxLayout(this);
    column->addStretch(5);
    column->addWidget(hint_);
    column->addStretch(1);
}

void background_picture::offer(const std::vector<QPushButton*>& buttons) {
    hint_->hide();
    auto* block = new QGridLayout; // side by side they would be wider than a small window
    block->setSpacing(16);
    constexpr int ABREAST = 2;
    block->setColumnStretch(0, 1);
    block->setColumnStretch(ABREAST + 1, 1);
    int place = 0;
    for (QPushButton* button : buttons) {
        block->addWidget(button, place / ABREAST, 1 + place % ABREAST);
        ++place;
    }
    static_cast<QVBoxLayout*>(layout())->insertLayout(1, block);
}

void background_picture::paint_scene() {
    scene_ = painted_scene(size() * devicePixelRatioF());
    update();
}

void background_picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (scene_.isNull())
        painter.fillRect(rect(), GROUND);
    else
        painter.drawImage(rect(),
                          scene_); // a picture of another size is stretched until the next one
    if (scene_.size() != size() * devicePixelRatioF())
        later_.start();
}

#include "myGauge.h"

#include "bundle.h"
#include "canvas.h"
#include "constantes.h"
#include "parameters.h"
#include "system_log.h"
#include "text.h"
#include "user_defaults.h"

#include <QFile>
#include <QFontMetricsF>
#include <QSvgRenderer>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

// Size of a dial whose picture is missing.
constexpr QSizeF DIAL_SIZE(364, 286);
constexpr double DIAL_EDGE = 10;
constexpr int LABEL_PIXELS = 30;
constexpr int SMALLEST_LABEL_PIXELS = 20;
constexpr int NAME_PIXELS = 20;
constexpr double LABEL_GAP = 3;
constexpr double NAME_EDGE = 3;
const QColor FOOT = colour(7.0 / 255, 8.0 / 255, 9.0 / 255); // of the empty dial
const QColor NAME_INK = colour(0.3450980484485626, 0.9803921580314636, 0.5098039507865906, 1.0);
const QColor NEEDLE_RIGHT = colour(1.0, 0.125490203499794, 0, 0.9);
const QColor NEEDLE_LEFT = colour(1.0, 0.1882352977991104, 0, 0.9);
const QColor GREY_RIGHT = colour(0.55, 0.55, 0.55, 0.9);
const QColor GREY_LEFT = colour(0.62, 0.62, 0.62, 0.9);
const QColor DIMMED = colour(0, 0, 0, 0.55);
const QColor HUB = colour(0.5333333611488342, 0.5333333611488342, 0.5333333611488342, 0.8);
const QColor GLOW = colour(1, 0, 0, 0.8); // as opaque as its source
constexpr double HUB_RADIUS = 22;
constexpr double GLOW_RADIUS = 10;

QFont label_font(int pixels = LABEL_PIXELS) {
    return image_font(QStringLiteral("Arial"), pixels);
}

// The extent of the dial's labels, y upwards.
std::vector<QRectF> label_boxes(const std::array<std::string, 11>& labels, const QFont& font) {
    const QFontMetricsF metrics(font);
    std::vector<QRectF> boxes;
    for (std::size_t i = 0; i < labels.size(); ++i) {
        const auto& [at, shift_half_width] = DIAL_LABEL_PLACES[i];
        const double wide = text_width(font, qstring(labels[i]));
        boxes.emplace_back(shift_half_width ? at.x - wide / 2 : at.x, at.y + metrics.descent(),
                           wide, metrics.capHeight());
    }
    return boxes;
}

// Smaller where long labels would overlap.
QFont fitting_label_font(const std::array<std::string, 11>& labels) {
    for (int pixels = LABEL_PIXELS; pixels > SMALLEST_LABEL_PIXELS; --pixels) {
        const std::vector<QRectF> boxes = label_boxes(labels, label_font(pixels));
        const auto touches = [](const QRectF& a, const QRectF& b) {
            return a.adjusted(-1, -1, 1, 1).intersects(b);
        };
        if (std::ranges::adjacent_find(boxes, touches) == boxes.end())
            return label_font(pixels);
    }
    return label_font(SMALLEST_LABEL_PIXELS);
}

// Centred on `x`; letters are condensed rather than overlap their neighbours.
void condensed_text(canvas& target, double room, double x, const QString& text, const QFont& font,
                    const std::function<void(double left)>& paint) {
    const double wide = text_width(font, text);
    const double squeeze = wide > room && room > 0 ? room / wide : 1;
    QPainter& painter = target.painter();
    painter.save();
    painter.translate(x, 0);
    painter.scale(squeeze, 1);
    paint(-wide / 2);
    painter.restore();
}

} // namespace

myGauge::myGauge(const bundle& resources, const mac_toolies& decoder)
    : resources_(resources), toolies(decoder) {}

void myGauge::initGauge(std::string_view pid) {
    cur_PID = last_path_component(pid);
    work_out_base_gauge();
    draw_cur_needle_value(parameter_range(toolies, cur_PID).low);
}

void myGauge::set_pixel_scale(double pixels_a_unit) {
    if (pixels_a_unit == pixel_scale_ || !(pixels_a_unit > 0))
        return;
    pixel_scale_ = pixels_a_unit;
    empty_dial_ = hubs_[0].image = hubs_[1].image = QImage();
    if (cur_PID.empty())
        return;
    work_out_base_gauge();
    draw_cur_needle_value(last_OBD_val);
}

std::array<int, 3> myGauge::gauge_range(unsigned pid) const {
    const dial_range range =
        dial_range_of(pid, !toolies.doors().defaults->boolean(KS_METRIC_UNITS_KEY));
    return {range.low, range.high, range.scaling};
}

// The vector drawing if there is one, which is sharp at any scale; else the bitmap of the same
// name.
void myGauge::load_empty_dial() {
    QSvgRenderer drawing;
    const QString svg = qstring(resources_.image_path("gauge_empty_no_numbers.svg"));
    if (QFile::exists(svg) && drawing.load(svg)) {
        gaugeSize = drawing.defaultSize();
        empty_dial_ = empty_image(gaugeSize, pixel_scale_);
        drawing.render(&canvas(empty_dial_).painter(), QRectF(QPointF(0, 0), gaugeSize));
        return;
    }
    const QImage picture(qstring(resources_.image_path("gauge_empty_no_numbers.gif")));
    if (picture.isNull())
        qCWarning(log_drawing, "no picture of an empty dial");
    gaugeSize = picture.isNull() ? DIAL_SIZE : QSizeF(picture.size());
    empty_dial_ = empty_image(gaugeSize, pixel_scale_);
    canvas(empty_dial_).painter().drawImage(QRectF(QPointF(0, 0), gaugeSize), picture);
}

void myGauge::work_out_base_gauge() {
    if (empty_dial_.isNull())
        load_empty_dial();
    image_without_needle = empty_dial_;
    face_is_new_ = true;
    const unsigned pid = mac_toolies::convertStr2Byte(cur_PID);
    const std::array<int, 3> fixed = gauge_range(pid);
    const value_range shown = parameter_range(toolies, cur_PID);
    const dial_range range = only_standard_decodes(pid) ? dial_range_over(shown.low, shown.high)
                                                        : dial_range{fixed[0], fixed[1], fixed[2]};
    range_lo = range.low;
    range_hi = range.high;
    range_scaling = range.scaling;

    canvas target(image_without_needle);
    const std::array<std::string, 11> labels = dial_labels({range_lo, range_hi, range_scaling});
    const QFont font = fitting_label_font(labels);
    const std::vector<QRectF> boxes = label_boxes(labels, font);
    for (std::size_t i = 0; i < labels.size(); ++i)
        target.text(boxes[i].x(), DIAL_LABEL_PLACES[i].at.y, qstring(labels[i]), font, Qt::white);
    const double left = boxes.front().right() + LABEL_GAP;
    const double right = boxes.back().left() - LABEL_GAP;
    const double middle = gaugeSize.width() / 2;
    // The name's casing is painted before the units, which are directly above it.
    const QString name = qstring(parameter_name(toolies, cur_PID));
    const QFont name_font = image_font(QStringLiteral("Helvetica"), NAME_PIXELS, true);
    const double name_room = gaugeSize.width() - 2 * DIAL_EDGE;
    condensed_text(target, name_room, middle, name, name_font,
                   [&](double x) { target.text_edge(x, 0, name, name_font, FOOT, NAME_EDGE); });
    paint_units(target, 2 * std::min(middle - left, right - middle));
    condensed_text(target, name_room, middle, name, name_font,
                   [&](double x) { target.text(x, 0, name, name_font, NAME_INK); });
}

// `room`: the space for the units between the first and the last label.
void myGauge::paint_units(canvas& target, double room) const {
    const double middle = gaugeSize.width() / 2;
    const auto write = [&](double width, double y, const QString& text) {
        condensed_text(target, width, middle, text, label_font(),
                       [&](double x) { target.text(x, y, text, label_font(), Qt::yellow); });
    };
    write(room, 15, qstring(parameter_units(toolies, cur_PID)));
    if (range_scaling != 1)
        write(gaugeSize.width(), 45, qstring("x " + std::to_string(range_scaling)));
}

QRect myGauge::restore_face() {
    const bool whole =
        face_is_new_ || !image_.isDetached() || image_.size() != image_without_needle.size();
    const QRect restored = whole ? image_without_needle.rect() : needle_pixels_;
    if (whole)
        copy_picture(image_without_needle, image_);
    else
        copy_pixels(image_without_needle, image_, restored);
    face_is_new_ = false;
    return restored;
}

void myGauge::draw_cur_needle_value(double value, needle look) {
    last_OBD_val = value;
    if (image_without_needle.isNull())
        return;
    const QRect restored = restore_face();
    canvas target(image_);
    needle_pixels_ =
        draw_gauge_needle_raw(target, NEEDLE_X, NEEDLE_Y, value / range_scaling, NEEDLE_START,
                              NEEDLE_END, range_lo, range_hi, NEEDLE_WIDTH, NEEDLE_LENGTH, look);
    changed_ |= restored | needle_pixels_;
}

void myGauge::draw_without_needle(face look) {
    if (image_without_needle.isNull())
        return;
    changed_ |= restore_face();
    canvas target(image_);
    if (look == face::dimmed) {
        target.painter().setCompositionMode(QPainter::CompositionMode_SourceAtop);
        target.fill(QRectF(0, 0, target.width(), target.height()), DIMMED);
        needle_pixels_ = image_.rect();
    } else {
        const QFont font = label_font();
        const QRectF middle(NEEDLE_X - HUB_RADIUS, NEEDLE_Y - HUB_RADIUS, 2 * HUB_RADIUS,
                            2 * HUB_RADIUS);
        const QString nothing = QStringLiteral("-");
        target.text(NEEDLE_X - text_width(font, nothing) / 2, middle.y(), nothing, font, Qt::white);
        needle_pixels_ = target.pixels_of(middle);
    }
    changed_ |= needle_pixels_;
}

QRect myGauge::draw_gauge_needle_raw(canvas& target, int x, int at_y, double this_val,
                                     double alpha_min, double alpha_max, double min_val,
                                     double max_val, double needle_w, double needle_h,
                                     needle look) {
    const double angle = needle_angle(this_val, alpha_min, alpha_max, min_val, max_val);
    const needle_points needle = needle_shape({static_cast<double>(x), static_cast<double>(at_y)},
                                              angle, needle_w, needle_h);
    const auto at = [&](dial_point p) { return target.flipped(p.x, p.y); };
    const QPolygonF right{at(needle.centre), at(needle.left), at(needle.tip)};
    const QPolygonF left{at(needle.centre), at(needle.right), at(needle.tip)};
    const bool lit = look == ::needle::lit;
    QPainter& painter = target.painter();
    painter.setPen(Qt::NoPen);
    painter.setBrush(lit ? NEEDLE_RIGHT : GREY_RIGHT);
    painter.drawPolygon(right);
    painter.setBrush(lit ? NEEDLE_LEFT : GREY_LEFT);
    painter.drawPolygon(left);
    const cast_shadow& hub = hub_of(look, x, at_y, target);
    painter.drawImage(hub.at, hub.image);
    const QRectF round(hub.at, hub.image.deviceIndependentSize());
    return target.pixels_of(target.flipped(right.boundingRect() | left.boundingRect() | round));
}

const cast_shadow& myGauge::hub_of(needle look, int x, int y, const canvas& target) {
    cast_shadow& kept = hubs_[look == needle::lit ? 0 : 1];
    if (!kept.image.isNull())
        return kept;
    const QRectF hub =
        target.flipped(QRectF(x - HUB_RADIUS, y - HUB_RADIUS, 2 * HUB_RADIUS, 2 * HUB_RADIUS));
    const double scale = std::max(1.0, pixel_scale_); // QPainter ignores a smaller one
    kept = cast_shadow_of(hub, GLOW_RADIUS, scale, look == needle::lit ? GLOW : Qt::transparent,
                          [&hub](QPainter& painter) { painter.drawEllipse(hub); });
    const QImage glow =
        std::exchange(kept.image, empty_image(kept.image.deviceIndependentSize(), scale));
    QPainter painter(&kept.image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-kept.at);
    painter.setPen(Qt::NoPen);
    painter.setBrush(HUB);
    painter.drawEllipse(hub);
    painter.drawImage(kept.at, glow);
    painter.drawEllipse(hub);
    return kept;
}

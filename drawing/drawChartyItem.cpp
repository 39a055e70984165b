#include "drawChartyItem.h"

#include "canvas.h"
#include "parameters.h"
#include "text.h"

void drawChartyItem::initWitdim(QSizeF size, std::string_view imageID) {
    cur_item_2_PLOT = 0;
    is_thumbnail = true;
    is_thumb_selected = false;
    SHOW_THESE_MANY_LAST_POINTS = -1;
    cur_ITEMS_2_PLOT.clear();
    cur_sample_set.clear();
    l_val_points.clear();
    r_these_labels.clear();
    imageID_ = last_path_component(imageID);
    setDrawingSizes(size);
}

void drawChartyItem::initWithImage(const QImage& image, std::string_view imageID) {
    image_ = image;
    imageID_ = last_path_component(imageID);
}

void drawChartyItem::setDrawingSizes(QSizeF size) {
    chartySize = size;
    draw_empty_background();
}

void drawChartyItem::set_pixel_scale(double pixels_a_unit) {
    if (pixels_a_unit == pixel_scale_ || !(pixels_a_unit > 0))
        return;
    pixel_scale_ = pixels_a_unit;
    draw_empty_background();
}

void drawChartyItem::set_stretch(double times) {
    if (times == stretch_ || !(times > 0))
        return;
    stretch_ = times;
    readout_name_ = {};
}

void drawChartyItem::draw_empty_background() {
    image_ = empty_image(chartySize, pixel_scale_);
}

void drawChartyItem::use_this_pids(std::vector<std::string> pids) {
    if (pids == _pid_logitems_list && names_.size() == pids.size())
        return;
    _pid_logitems_list = std::move(pids);
    names_.clear();
    widest_value_ = 0;
    for (const std::string& pid : _pid_logitems_list)
        names_.push_back(parameter_name(toolies, pid));
}

bool drawChartyItem::isPlottingThisIndex(int index) const {
    return cur_ITEMS_2_PLOT.size() < 2 ? index == cur_item_2_PLOT
                                       : cur_ITEMS_2_PLOT.contains(index);
}

QColor drawChartyItem::setMyColor(int index) {
    switch (index) {
    case 0:
        return QColor(223, 1, 1);
    case 1:
        return QColor(0, 255, 0);
    case 2:
        return QColor(250, 88, 247);
    case 3:
        return QColor(255, 255, 0);
    case 4:
        return colour(0.6, 0.4, 0.2);
    case 5:
        return colour(0.5, 0, 0.5);
    case 6:
        return colour(0.5, 0.5, 0.5);
    case 7:
        return QColor(0, 0, 255);
    default:
        return QColor(0, 0, 0);
    }
}

chart_point drawChartyItem::scale_point(int x, double this_y, int scr_x, int scr_y, int scr_width,
                                        int src_height, double maxX, double minX, double maxY,
                                        double minY) {
    return ::scale_point(x, this_y, {scr_x, scr_y, scr_width, src_height},
                         {minX, maxX, minY, maxY});
}

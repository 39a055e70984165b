// One round dial for one parameter, drawn into an image of its own. Owned by the screen that shows
// it.
//
// The face is drawn once per parameter and pixel scale, the needle on a copy of it for every value.
// Coordinates are image units with y upwards.
#pragma once

#include "chart_geometry.h"
#include "dial_geometry.h"
#include "mac_toolies.h"
#include "shadow.h"

#include <QImage>

#include <array>
#include <string>
#include <string_view>
#include <utility>

class bundle;
class canvas;

// How a needle is drawn: greyed when the latest reply gave no value.
enum class needle { lit, greyed };
// Only the face, without a needle: no value yet, or nothing moves the dial.
enum class face { awaiting, dimmed };

class myGauge {
  public:
    // Both must outlive the dial.
    myGauge(const bundle& resources, const mac_toolies& decoder);

    // A dial for this PID (two-digit hex text), its needle at the PID's minimum.
    void initGauge(std::string_view pid);
    void swapCurGaugeBack(std::string_view pid) { initGauge(pid); }
    void set_pixel_scale(double pixels_a_unit);

    // [low, high, scaling] for a PID's number, in the user's units.
    std::array<int, 3> gauge_range(unsigned pid) const;
    // `value` in display units; NaN puts the needle at the start of the scale.
    void draw_cur_needle_value(double value, needle look = needle::lit);
    void draw_without_needle(face look);

    const QImage& imageRepresentation() const { return image_; }
    const QImage& image() const { return image_; }
    void setImage(const QImage& image) {
        image_ = image;
        face_is_new_ = true;
    }
    const std::string& imageID() const { return imageID_; }
    const std::string& imageTitle() const { return imageID_; }
    const std::string& imageUID() const { return imageID_; }
    void setImageID(std::string_view identifier) { imageID_ = identifier; }
    void my_set(std::string_view identifier) { imageID_ = identifier; }
    bool isFlipped() const { return false; }
    QSizeF size() const { return gaugeSize; }
    // The pixels that may differ since this was asked last.
    QRect take_changed_pixels() { return std::exchange(changed_, {}); }

    double get_OBDVal(std::string_view reply) const { return toolies.get_OBDVal(reply); }
    static chart_point scale_point(int x, double this_y, int scr_x, int scr_y, int scr_width,
                                   int src_height, double maxX, double minX, double maxY,
                                   double minY) {
        return ::scale_point(x, this_y, {scr_x, scr_y, scr_width, src_height},
                             {minX, maxX, minY, maxY});
    }

  private:
    void load_empty_dial();
    void work_out_base_gauge();
    void paint_units(canvas& target, double room) const;
    // Restores the face below the needle; returns where.
    QRect restore_face();
    // Returns the area painted.
    QRect draw_gauge_needle_raw(canvas& target, int x, int at_y, double this_val, double alpha_min,
                                double alpha_max, double min_val, double max_val, double needle_w,
                                double needle_h, needle look);
    // Its picture, which never changes; the hub of a greyed needle does not glow.
    const cast_shadow& hub_of(needle look, int x, int y, const canvas& target);

    const bundle& resources_;
    const mac_toolies& toolies;
    QImage image_;
    std::string imageID_;
    QImage image_without_needle;
    bool face_is_new_ = true; // and not in image_ yet
    QRect needle_pixels_, changed_;
    QSizeF gaugeSize;
    std::string cur_PID;
    double last_OBD_val = 0;
    int range_lo = 0, range_hi = 100, range_scaling = 1;

    double pixel_scale_ = 1;
    QImage empty_dial_;   // as loaded, at the pixel scale
    cast_shadow hubs_[2]; // the hub with and without its glow, as drawn over every needle
};

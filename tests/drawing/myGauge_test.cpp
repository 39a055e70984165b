#include "drawing_fixture.h"
#include "myGauge.h"
#include "qt_warnings.h"

#include <limits>
#include <numbers>

namespace {

class gauge_test : public drawing_test {
  protected:
    // Red as the needle is, at `distance` from the centre in that direction.
    bool needle_at(double degrees, double distance = 60) {
        const double angle = degrees * std::numbers::pi / 180;
        const QColor found = pixel_at(gauge.image(), NEEDLE_X + std::cos(angle) * distance,
                                      NEEDLE_Y + std::sin(angle) * distance);
        return found.red() > 180 && found.green() < 90 && found.blue() < 60;
    }

    myGauge gauge{resources, decoder};
};

TEST_F(gauge_test, a_dial_is_named_by_the_last_part_of_a_path) {
    gauge.initGauge("0C");
    const QImage plain = gauge.image();
    for (const char* path : {"dials/0C", "0C/", "/dials/0C//"}) {
        gauge.initGauge("04");
        gauge.initGauge(path);
        EXPECT_EQ(gauge.image(), plain) << path;
    }
}

TEST_F(gauge_test, ranges_follow_the_units) {
    EXPECT_EQ(gauge.gauge_range(13), (std::array<int, 3>{0, 200, 1}));
    use_metric(true);
    EXPECT_EQ(gauge.gauge_range(13), (std::array<int, 3>{0, 300, 1}));
    EXPECT_EQ(gauge.gauge_range(12), (std::array<int, 3>{0, 10, 1000}));
}

TEST_F(gauge_test, needle_points_at_the_value) {
    const struct {
        const char* pid;
        double value;
        double degrees;
    } cases[] = {{"0C", 0, 220},   {"0C", 5000, 90}, {"0C", 10000, -40}, {"05", -40, 220},
                 {"05", 560, -40}, {"04", 50, 90},   {"06", 0, 90},      {"0c", 15000, -170}};
    for (const double scale : {1.0, 2.0, 1.5}) {
        gauge.set_pixel_scale(scale);
        for (const auto& c : cases) {
            gauge.initGauge(c.pid);
            gauge.draw_cur_needle_value(c.value);
            EXPECT_TRUE(needle_at(c.degrees)) << c.pid << " " << c.value << " at scale " << scale;
            EXPECT_FALSE(needle_at(c.degrees + 25));
        }
        EXPECT_EQ(gauge.image().size(), (QSizeF(364, 286) * scale).toSize());
    }
}

TEST_F(gauge_test, a_new_dial_starts_at_its_minimum_without_the_old_needle) {
    gauge.initGauge("dials/0C");
    gauge.draw_cur_needle_value(5000);
    gauge.swapCurGaugeBack("05");
    EXPECT_FALSE(needle_at(90));
    EXPECT_TRUE(needle_at(220));
    gauge.set_pixel_scale(2);
    EXPECT_TRUE(needle_at(220)); // kept across scales
}

// A view paints only these; what was drawn in between was never seen.
TEST_F(gauge_test, every_pixel_that_differs_counts_as_changed) {
    QImage seen = gauge.imageRepresentation().copy();
    const auto covers_what_differs = [&] {
        const QImage now = gauge.imageRepresentation().copy();
        const QRect changed = gauge.take_changed_pixels();
        for (int y = 0; y < now.height(); ++y)
            for (int x = 0; x < now.width(); ++x)
                if (!changed.contains(x, y) &&
                    (seen.size() != now.size() || seen.pixel(x, y) != now.pixel(x, y)))
                    return false;
        seen = now;
        return true;
    };
    gauge.initGauge("0C");
    gauge.draw_without_needle(face::awaiting);
    EXPECT_TRUE(covers_what_differs()) << "a new face";
    gauge.draw_cur_needle_value(500);
    EXPECT_TRUE(covers_what_differs());
    gauge.draw_cur_needle_value(2500);
    gauge.draw_cur_needle_value(4500);
    EXPECT_TRUE(covers_what_differs()) << "two values";
    EXPECT_LT(gauge.take_changed_pixels().width(), 1) << "nothing since";
}

TEST_F(gauge_test, hub_glows_and_labels_are_white) {
    gauge.initGauge("04");
    gauge.draw_cur_needle_value(90);
    const QColor hub = pixel_at(gauge.image(), 182, 104);
    EXPECT_NEAR(hub.red(), hub.green(), 60);
    const QColor glow = pixel_at(gauge.image(), 182 - 25, 104);
    EXPECT_GT(glow.red(), glow.blue() + 30);
    int white = 0; // of the label "0" at (100, 24)
    for (int x = 100; x < 120; ++x)
        for (int y = 26; y < 60; ++y)
            white += pixel_at(gauge.image(), x, y).lightness() > 230 ? 1 : 0;
    EXPECT_GT(white, 30);
}

TEST_F(gauge_test, rubbish_is_harmless) {
    for (const char* pid : {"", "zz", "FFFFFFFFFF", "5F", "E4"}) {
        gauge.initGauge(pid);
        for (const double value :
             {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
              -std::numeric_limits<double>::max(), 1e9})
            gauge.draw_cur_needle_value(value);
    }
    gauge.set_pixel_scale(0);
    gauge.set_pixel_scale(-1);
    EXPECT_FALSE(gauge.image().isNull());
}

TEST_F(gauge_test, a_missing_picture_leaves_labels_and_needle) {
    expect_warning("no strings table");
    const bundle nothing("/nonexistent");
    expect_warning("no picture of an empty dial");
    myGauge bare(nothing, decoder);
    bare.draw_cur_needle_value(3); // before any face
    bare.initGauge("04");
    EXPECT_EQ(bare.image().size(), QSize(364, 286));
    EXPECT_GT(pixel_at(bare.image(), 182, 104).alpha(), 150);
}

} // namespace

// What tiles, chart and dials show, and where: nothing that the car did not send.
#include "instrument_panel.h"
#include "live_fixture.h"

#include <QComboBox>

namespace {

// Pixels of the colour that a needle alone has.
int needle_pixels(const QImage& dial) {
    int count = 0;
    for (int y = 0; y < dial.height(); ++y)
        for (int x = 0; x < dial.width(); ++x) {
            const QColor at = dial.pixelColor(x, y);
            count += at.red() > 180 && at.green() < 90 && at.blue() < 60 ? 1 : 0;
        }
    return count;
}

TEST_F(live_screen, a_needle_stands_only_where_a_sample_has_put_it) {
    const auto dial = [this] {
        draw();
        return app.find("gauge_uno")->grab().toImage();
    };
    const auto unusable = [this] {
        app.sent();
        app.receive("NO DATA\r\r>");
    };
    EXPECT_EQ(needle_pixels(dial()), 0) << "before a run";
    start();
    const QImage awaiting = dial();
    EXPECT_EQ(needle_pixels(awaiting), 0) << "before the first sample";
    unusable();
    EXPECT_EQ(dial(), awaiting) << "no sample yet";
    for (std::size_t place : {1, 2, 3})
        answer(place, false);
    answer(0, true);
    const QImage lit = dial();
    EXPECT_GT(needle_pixels(lit), 100);
    for (std::size_t place : {1, 2, 3})
        answer(place, true);
    EXPECT_EQ(dial(), lit);
    unusable();
    const QImage greyed = dial();
    EXPECT_EQ(needle_pixels(greyed), 0);
    EXPECT_NE(greyed, awaiting) << "it stays where it was";
    strip().choose({2});
    const QImage unmoved = dial();
    EXPECT_EQ(needle_pixels(unmoved), 0) << "the first parameter's samples are not this one's";
    app.find<QAbstractButton>("followChart")->click();
    EXPECT_GT(needle_pixels(dial()), 100) << "what was sampled last";
    for (std::size_t place : {1, 2, 3})
        answer(place, false);
    EXPECT_EQ(moved_by("gauge_uno"), "2");
    app.press("startStopBtn");
}

// The first dial of a fuel run shows what the large chart shows, computed or asked for.
TEST_F(live_screen, the_first_dial_of_a_fuel_run_follows_the_large_chart) {
    screen().choose_run(TASK_FUEL_ECONOMY);
    start();
    const auto cycle_moves = [this](int speed, const char* picture) {
        const QImage before = app.find(picture)->grab().toImage();
        app.receive("41 0D " + std::to_string(speed) + "\r\r>");
        app.receive("41 10 0C 80\r\r>");
        draw();
        return app.find(picture)->grab().toImage() != before;
    };
    cycle_moves(20, "gauge_uno");
    for (const int place : {0, 1}) {
        strip().choose({place});
        cycle_moves(30 + place, "gauge_uno");
        EXPECT_TRUE(cycle_moves(50 + place, "gauge_uno")) << place;
    }
    strip().choose({2});
    cycle_moves(20, "gauge_uno");
    EXPECT_FALSE(cycle_moves(70, "gauge_uno")) << "the air flow has not changed";
    strip().choose({1, 0}); // with two curves only the chart's own item
    cycle_moves(20, "gauge_uno");
    EXPECT_TRUE(cycle_moves(80, "gauge_dos"));
}

TEST_F(live_screen, a_run_and_a_kind_of_run_begin_with_empty_pictures) {
    const auto pictures = [this] {
        std::vector<QImage> all;
        for (const char* name : {"thumbiesMtrx", "chartFull", "gauge_uno"})
            all.push_back(app.find(name)->grab().toImage());
        return all;
    };
    start();
    draw();
    const auto first = pictures();
    for (int i = 0; i < 3; ++i)
        cycle(i % 2 == 0);
    draw();
    EXPECT_NE(pictures(), first);
    app.press("startStopBtn");
    app.receive("41 0D 30\r\r>"); // was still owed
    app.press("startStopBtn");
    draw();
    EXPECT_EQ(pictures(), first);
    app.press("startStopBtn");
    auto* selector = app.find<QComboBox>("runSelectorCombo");
    selector->setCurrentIndex(3);
    const auto at_once = pictures();
    draw();
    EXPECT_EQ(pictures(), at_once);
}

// Rooms of the windows of 1024 x 600 to 2560 x 1440, and narrower ones.
TEST(instrument_panel_test, strip_chart_and_dials_fill_the_room_with_equal_edges) {
    const block_units units{{420, 230}, {364, 286}, 83};
    const QSize rooms[] = {{864, 440},   {940, 590}, {1120, 640}, {1760, 920},
                           {2400, 1280}, {640, 320}, {540, 840}};
    for (const QSize& room : rooms) {
        SCOPED_TRACE(std::to_string(room.width()) + "x" + std::to_string(room.height()));
        const block_layout at = lay_out_block(room, units, 16, 24);
        std::vector<QRect> parts{at.strip, at.chart, at.dials[0], at.dials[1], at.under_dials};
        QRect whole;
        for (const QRect& part : parts) {
            EXPECT_TRUE(QRect(QPoint(0, 0), room).contains(part));
            whole |= part;
            for (const QRect& other : parts)
                EXPECT_TRUE(&part == &other || part == other || !part.intersects(other));
        }
        EXPECT_LE(std::abs(whole.left() - (room.width() - 1 - whole.right())), 1) << "equal edges";
        EXPECT_EQ(whole.top(), 0);
        if (room.width() > room.height()) {
            EXPECT_GE(whole.bottom(), room.height() - 3) << "nothing blank below";
        }
        EXPECT_NEAR(at.chart.width() / 420.0, at.chart.height() / 230.0, 0.01);
        EXPECT_NEAR(at.chart.height() / 230.0, at.strip.height() / 83.0, 0.02);
        EXPECT_EQ(at.chart.top() - at.strip.bottom() - 1, 16);
    }
}

} // namespace

// The live-data screen by its widgets, against answers given by hand.
#pragma once

#include "actions.h"
#include "app_harness.h"
#include "qt_warnings.h"
#include "thumbnail_strip.h"

#include <fstream>
#include <gtest/gtest.h>

using std::chrono::milliseconds;
using list = std::vector<std::string>;

class live_screen : public testing::Test {
  protected:
    live_screen() { open(); }

    void open() {
        expect_warning("propagateSizeHints"); // of a view that is a window of its own
        app.delegate->do_actions();
        QWidget* view = screen().view();
        view->resize(1100, 640);
        view->show();
        draw();
    }
    // Starts a run at its first request; the way to the adapter has been gone before.
    void start() {
        connected_2_KS_interface = true;
        app.press("startStopBtn");
        if (!connected_2_WIFI_interface)
            app.connect();
        app.loop.settle();
    }
    void draw() { app.loop.advance(milliseconds(200)); }
    // Answers the next request for the parameter at this place as `share` of its range.
    void answer(std::size_t place, bool high) {
        const std::string& pid = screen().pids()[place];
        ASSERT_EQ(app.sent(), "01 " + pid + "\r");
        const std::string data = pid == "0C" ? (high ? "60 00" : "10 00") : high ? "90" : "30";
        app.receive("41 " + pid + " " + data + "\r\r>");
    }
    void cycle(bool high = false) {
        for (std::size_t place = 0; place < screen().pids().size(); ++place)
            answer(place, high);
    }
    // Places of the parameters whose samples change this picture.
    std::string moved_by(const char* picture) {
        cycle(false);
        draw();
        std::string places;
        for (std::size_t place = 0; place < screen().pids().size(); ++place) {
            const QImage before = app.find(picture)->grab().toImage();
            answer(place, true);
            draw();
            if (app.find(picture)->grab().toImage() != before)
                places += std::to_string(place);
        }
        return places;
    }
    list log_lines() {
        std::ifstream file(screen().log_path());
        list lines;
        for (std::string line; std::getline(file, line);)
            lines.push_back(line + (file.eof() ? " without its end" : ""));
        return lines;
    }
    actions& screen() { return static_cast<actions&>(*app.delegate->current_screen()); }
    thumbnail_strip& strip() { return *static_cast<thumbnail_strip*>(app.find("thumbiesMtrx")); }

    app_harness app;
};

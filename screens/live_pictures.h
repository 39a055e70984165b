// The pictures of the live-data screen: a thumbnail for each parameter, the large chart, two dials.
// The screen says what changed; draw() paints what has changed and can be seen, which is all that a
// frame costs. Owned by actions.
#pragma once

#include "drawChartyItem.h"
#include "myGauge.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

class live_view;
class picture_view;
class sample_rows;

class live_pictures {
  public:
    // Units of the large chart's picture.
    static QSizeF chart_size() { return {420, 230}; }

    live_pictures(const mac_toolies& toolies, const bundle& resources);

    // New pictures for these parameters: the first is in the large chart and on the first dial.
    void rebuild(const std::vector<std::string>& pids);

    void set_large_chart(int shown_index, const std::set<int>& indices_plotted);
    void set_title(const std::string& title);
    // Rows in the large chart, the last ones; -1 for all.
    void set_points_shown(int count);
    void select_thumbnail(int index, bool selected);
    // Whether axis limits are the middle of a parameter's range, before there are samples.
    void use_realtime_labels(bool yes) { realtime_labels_ = yes; }

    void sample_changed(int index);
    void put_dial_back(int dial, const std::string& pid);
    void move_needle(int dial, double value);
    void all_changed();

    bool is_plotting(int index) const { return cur_zoom_chart.isPlottingThisIndex(index); }
    const std::string& title() const { return cur_chart_title; }

    void draw(live_view& view, const sample_rows& rows, const sample_set& samples);

  private:
    struct thumbnail {
        drawChartyItem chart;
        bool changed = true;
        bool realtime_labels = true; // until it is drawn for a sample or a selection
    };
    struct dial {
        myGauge gauge;
        std::string pid{};
        bool put_back = false;
        bool needle_moved = false;
        double value = 0;
        double scale = 0;
    };
    static void draw_dial(dial& shown, picture_view& view);

    toolkit_doors doors_;
    std::vector<thumbnail> images_4_top;
    drawChartyItem cur_zoom_chart;
    bool large_chart_changed_ = true;
    double chart_scale_ = 0, thumbnail_scale_ = 0;
    std::string cur_chart_title;
    bool realtime_labels_ = true;
    std::vector<std::string> pids_;
    dial dials_[2]; // reloj1 and reloj2
};

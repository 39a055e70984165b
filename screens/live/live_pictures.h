// The pictures of the live-data screen: a thumbnail for each parameter, the large chart, two dials.
// The screen reports changes; draw() paints only what has changed and is visible. Before a
// parameter's first sample its pictures show their empty faces and "-". Owned by actions.
#pragma once

#include "drawChartyItem.h"
#include "myGauge.h"

#include <optional>
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
    // Whether axis limits before the first samples are the middle of a parameter's range.
    void use_realtime_labels(bool yes) { realtime_labels_ = yes; }
    // The face of a dial, and whether that parameter's samples move its needle: otherwise the dial
    // is dimmed.
    void reset_dial(int dial, int index, bool moves);

    // A reply has been filed. NaN if it was unusable: the needle keeps its place and is greyed.
    void sample(int index, double value);
    // A run begins: earlier samples belong to another run.
    void forget_samples();

    bool is_plotting(int index) const { return cur_zoom_chart.isPlottingThisIndex(index); }
    bool has_reply(int index) const { return readings_[static_cast<std::size_t>(index)].replied; }
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
        int index = 0;
        bool moves = false;
        bool put_back = false; // not drawn yet
        bool changed = false;  // the needle, or that there is one
        double scale = 0;
    };
    // One parameter's latest sample in this run.
    struct reading {
        std::optional<double> value{}; // the last usable one
        bool replied = false, stale = false;
    };
    void all_changed();
    void draw_dial(dial& shown, picture_view& view);
    sample_set texts_of(sample_set samples) const;

    toolkit_doors doors_;
    std::vector<thumbnail> images_4_top;
    drawChartyItem cur_zoom_chart;
    bool large_chart_changed_ = true;
    double chart_scale_ = 0, thumbnail_scale_ = 0;
    QColor chart_ground_, cell_ground_;
    std::string cur_chart_title;
    bool realtime_labels_ = true;
    std::vector<std::string> pids_;
    std::vector<reading> readings_;
    dial dials_[2]; // reloj1 and reloj2
};

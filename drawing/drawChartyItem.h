// One line chart of sampled values, drawn into an image of its own: a thumbnail or the large chart.
// Owned by the screen that shows it, which feeds it parameters, samples and labels and takes its
// image.
//
// Coordinates are image units with y upwards. The image has a fixed size in units;
// set_pixel_scale() sets the pixels per unit where it is shown, so that it is sharp.
#pragma once

#include "canvas.h"
#include "chart_geometry.h"
#include "mac_toolies.h"
#include "sample_rows.h"

#include <QColor>
#include <QImage>

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

// The texts at a parameter's value axis; upper and lower as decimal text.
struct label_record {
    std::string name, units, upper, lower;
    bool operator==(const label_record&) const = default;
};
using label_records = std::vector<label_record>;

class drawChartyItem {
  public:
    explicit drawChartyItem(const toolkit_doors& doors) : toolies(doors) {}

    void initWitdim(QSizeF size, std::string_view imageID);
    void initWithImage(const QImage& image, std::string_view imageID);
    void setDrawingSizes(QSizeF size);
    void resizeImage(QSizeF size) { setDrawingSizes(size); }
    void set_pixel_scale(double pixels_a_unit);
    // Horizontal stretch when the picture is shown; a thumbnail's letters are drawn narrower by
    // that factor.
    void set_stretch(double times);
    // The background; with an opaque colour the picture has no transparent pixels.
    void set_ground(const QColor& colour) { ground_ = colour; }
    void draw_empty_background();

    void use_this_pids(std::vector<std::string> pids);
    // Another run's values are no guide to the width needed.
    void forget_widths() { widest_value_ = 0; }
    void update_cur_sample(sample_set samples) { cur_sample_set = std::move(samples); }
    // -1: none; the first parameter's axis is shown.
    void set_item_2_plot(int index) { cur_item_2_PLOT = index; }
    void updateNoOfPlots(std::set<int> indices) { cur_ITEMS_2_PLOT = std::move(indices); }
    // Rows to show, the last ones; -1 for all.
    void setNumberPointsToPlot(int count) { SHOW_THESE_MANY_LAST_POINTS = count; }
    // The time of the rows, below the plot at the right.
    void set_time_span(std::string text) { time_span_ = std::move(text); }
    void setThumbnail(bool yes) { is_thumbnail = yes; }
    void set_thumb_selected(bool yes) { is_thumb_selected = yes; }

    int curPlottingIdx() const { return cur_item_2_PLOT; }
    bool isSelectedThumb() const { return is_thumb_selected; }
    bool isPlottingThisIndex(int index) const;
    double last_value() const { return last_OBD_val; }
    // The plot rectangle of the last draw_grid().
    const chart_area& plot_area() const { return drawSizes; }

    const QImage& image() const { return image_; }
    const QImage& imageRepresentation() const { return image_; }
    const std::string& imageID() const { return imageID_; }
    const std::string& imageUID() const { return imageID_; }
    const std::string& imageTitle() const { return imageID_; }
    void setImage(const QImage& image) { image_ = image; }
    void setImageID(std::string_view identifier) { imageID_ = identifier; }
    void my_set(std::string_view identifier) { imageID_ = identifier; }

    // A reply's number for the labels: 0 for an unusable reply.
    double get_OBDVal(std::string_view reply) const;
    // A curve's colour; black beyond the table.
    static QColor setMyColor(int index);
    static QColor axis_figures();
    static chart_point scale_point(int x, double this_y, int scr_x, int scr_y, int scr_width,
                                   int src_height, double maxX, double minX, double maxY,
                                   double minY);

    // One record per parameter: the span of all samples but the first, or the middle half of the
    // catalogue's range while there are fewer than two. If there is no span, the catalogue's range,
    // or one unit to either side of the value.
    label_records work_out_labels(const sample_rows& samples) const;
    // The same before a run: the lower quarter comes first. Once real-time samples exist, as the
    // caller's sample set says.
    label_records work_out_labels_4_realtime() const;
    // The limits of a record's axis.
    static double upper_limit(const label_record& record);
    static double lower_limit(const label_record& record);
    // The width of the axis values, in units.
    double get_width_of_axis_label(const label_record& record) const;

    // Background, plot frame, grid, axes and title. Unchanged parts are not painted again.
    void draw_grid(const label_records& labels, std::string_view this_title);
    // The curves over the grid, and the value read-out. False if there are no samples.
    bool plot_array_list(const sample_rows& points, const label_records& these_labels);

    // --- the real-time chart, which grows point by point
    // The points: for each sample the parameters' value texts. The caller appends the newest one,
    // then plots it.
    std::vector<std::vector<std::string>>& val_points() { return l_val_points; }
    void plot_this_point_realtime(int index);
    void replot_realtime_chart(int count);

  private:
    struct value_axis {
        double lower, upper;
        std::string units;
        int index;
        double x;
        bool operator==(const value_axis&) const = default;
    };
    // Everything that the picture of the grid depends on.
    struct grid_look {
        QSizeF size;
        double scale = 0;
        QColor ground;
        bool thumbnail = false, selected = false;
        chart_area plot;
        std::vector<value_axis> axes;
        std::string title, time_span;
        bool operator==(const grid_look&) const = default;
    };
    grid_look look_of_grid(const label_records& labels, std::string_view title) const;
    void paint_grid(canvas& target, const grid_look& look);
    static void paint_plot_frame(canvas& target, const chart_area& plot);
    static void paint_grid_lines(canvas& target, const chart_area& plot);
    static void print_axis_values_4_grid(canvas& target, const value_axis& axis,
                                         const chart_area& plot);
    static void paint_axis_band(canvas& target, const value_axis& axis, const chart_area& plot);
    static void paint_highlight(canvas& target, bool selected);

    bool is_drawn(int index) const;
    bool has_two_axes() const { return !is_thumbnail && cur_ITEMS_2_PLOT.size() > 1; }
    void plot_one_curve(canvas& target, const sample_rows& points, std::size_t parameter,
                        const label_record& label);
    struct readout_look;
    void display_value(canvas& target);
    void display_value_4_thumbnail(canvas& target);
    void paint_readout(canvas& target, double x, double y, const readout_look& look);
    void write_value(canvas& target, double room, double x, double y, const QString& value,
                     const readout_look& look);
    void paint_level_bar(canvas& target, int segments);

    void start_realtime_curve(std::size_t parameter, const std::string& text);
    void extend_realtime_curve(std::size_t parameter, double value);
    chart_point realtime_point(std::size_t sample, double value) const;

    mutable kept_widths axis_label_widths_;
    kept_widths value_widths_;
    kept_detail plot_frame_, readout_name_, level_bar_;
    QImage image_;
    std::string imageID_;
    chart_area drawSizes;
    QSizeF chartySize{1, 1};
    double pixel_scale_ = 1;
    double stretch_ = 1;
    QColor ground_ = Qt::transparent;
    double widest_value_ = 0; // of the read-out, at its full size
    int widest_of_ = -1;      // the parameter it belongs to
    double last_OBD_val = 0;
    int r_prev_x = 0, r_prev_y = 0;
    bool r_prev_is_gap = true; // no segment leads on from there
    int r_cur_maxX = 0;
    double r_cur_maxY = 0, r_cur_minY = 0;
    label_records r_these_labels;
    std::vector<std::vector<std::string>> l_val_points;
    std::set<int> cur_ITEMS_2_PLOT;
    int cur_item_2_PLOT = 0;
    mac_toolies toolies;
    std::vector<std::string> _pid_logitems_list;
    std::vector<std::string> names_; // of those PIDs, cached: reading them takes a table
    sample_set cur_sample_set;
    std::string time_span_;
    bool some_sampling_done = false;
    bool is_thumbnail = true;
    bool is_thumb_selected = false;
    int SHOW_THESE_MANY_LAST_POINTS = -1;

    // The latest grid: most samples do not change an axis.
    grid_look grid_look_;
    QImage grid_;
};

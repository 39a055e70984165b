// The widgets of the live-data screen. Owned by actions.
#pragma once

#include "instrument_panel.h"
#include "picture_view.h"

#include <QSizeF>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class busy_indicator;
class Ks_lite_delegate;
class QCheckBox;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QScrollArea;
class QSlider;
class QToolButton;
class QVBoxLayout;
class status_line;
class thumbnail_strip;

class live_view {
  public:
    live_view(Ks_lite_delegate& delegate, const block_units& units);
    ~live_view();

    QWidget* root() { return root_.get(); }
    status_line& statusLbl() { return *statusLbl_; }
    thumbnail_strip& thumbiesMtrx() { return *thumbiesMtrx_; }
    picture_view& chartFull() { return *chartFull_; }
    picture_view& gauge_uno() { return *gauge_uno_; }
    picture_view& gauge_dos() { return *gauge_dos_; }

    std::function<void()> on_start_stop, on_next_sensors, on_more_parameters;
    std::function<void(int)> on_run_selected;
    std::function<void(double)> on_zoom; // 0 to 1
    std::function<void(bool)> on_follow_chart;
    std::function<void(bool)> on_fast;
    std::function<void()> on_resized; // pictures are shown at a different size

    void show_running(bool running);
    void show_waity(bool visible);
    void show_zoom(bool visible);
    void show_follow_chart(bool on);
    // Since the run's first request; empty for none.
    void show_length(const QString& length);
    // The switch for fast sampling, and its tooltip.
    void show_fast(bool on, bool enabled, std::string_view hint_key);
    // Its result; empty: none yet.
    void show_rate(const QString& rate);
    // Back to all rows, without a call of on_zoom.
    void reset_zoom();
    void show_second_dial(bool visible);
    void show_next_sensors(bool visible);
    void select_run(int index);
    void set_thumbnails(const std::vector<QString>& names);
    // Brings the thumbnail to the left edge of the strip.
    void scroll_to_thumbnail(int index);
    // A permanent mark that this run is not being logged, and why; empty: none.
    void show_log_mark(const std::string& text);

  private:
    void build_controls(QHBoxLayout* row);
    void build_more(QHBoxLayout* row);
    void build_fast(QHBoxLayout* row);
    void build_zoom(QHBoxLayout* row);
    void build_log_mark(QVBoxLayout* column);
    void build_panel(QVBoxLayout* column, const block_units& units);
    void build_strip();
    QLabel* make_hint(const char* name, std::string_view key, QWidget* parent) const;
    void fit_thumbnails();

    Ks_lite_delegate& delegate_;
    std::unique_ptr<QWidget> root_;
    status_line* statusLbl_ = nullptr;
    busy_indicator* waity_ = nullptr;
    QToolButton* startStopBtn_ = nullptr;
    QToolButton* o2SwapBtn_ = nullptr;
    QComboBox* runSelectorCombo_ = nullptr;
    QSlider* charty_zoomer_ = nullptr;
    QLabel* length_ = nullptr;
    QLabel* log_mark_ = nullptr;
    QScrollArea* xtopActionCharts_ = nullptr;
    QLabel* empty_strip_ = nullptr;
    thumbnail_strip* thumbiesMtrx_ = nullptr;
    instrument_panel* panel_ = nullptr;
    picture_view* chartFull_ = nullptr;
    picture_view* gauge_uno_ = nullptr;
    picture_view* gauge_dos_ = nullptr;
    QCheckBox* follow_chart_ = nullptr;
    QCheckBox* fast_ = nullptr;
    QLabel* rate_ = nullptr;
    QString fast_hint_;
    QLabel* dial_hint_ = nullptr; // in the second dial's place
};

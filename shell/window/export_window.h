// The window that turns a run log into a table: choose a log of the log folder and a format, then
// see the path of the table. It is not modal and works in small pieces on the run loop, so that a
// run continues. Owned by the main window.
#pragma once

#include "log_export.h"
#include "run_loop.h"

#include <QDialog>

#include <memory>

class Ks_lite_delegate;
class mac_toolies;
class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTableWidget;
class QVBoxLayout;
class status_line;

class export_window final : public QDialog {
  public:
    export_window(Ks_lite_delegate& delegate, QWidget* parent);
    ~export_window() override;

    // Shows it with the current logs.
    void open_beside();

  protected:
    // Closing cancels an unfinished export.
    void done(int result) override;

  private:
    void build_list(QVBoxLayout* column);
    void build_foot(QVBoxLayout* column);
    void list_logs();
    void offer_time();
    void start_export();
    void go_on();
    void take_result(export_result result);
    void give_up();

    Ks_lite_delegate& delegate_;
    const mac_toolies& toolies_;
    std::unique_ptr<log_export> work_;
    std::string output_;
    run_loop::timer_id next_piece_ = 0;

    QTableWidget* logs_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* no_logs_ = nullptr;
    QRadioButton* as_csv_ = nullptr;
    QRadioButton* as_txt_ = nullptr;
    QCheckBox* with_time_ = nullptr;
    QProgressBar* progress_ = nullptr;
    status_line* status_ = nullptr;
    QPushButton* start_ = nullptr;
    QPushButton* open_folder_ = nullptr;
};

// The widgets of the report screen: the sheet itself, and what can be done with it.
#pragma once

#include "car_report.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

class busy_indicator;
class Ks_lite_delegate;
class mac_toolies;
class QCheckBox;
class QPushButton;
class QTextBrowser;
class QWidget;
class status_line;
struct report_sheet;

class report_view {
  public:
    report_view(Ks_lite_delegate& delegate, const mac_toolies& toolies);
    ~report_view();

    QWidget* root() { return root_.get(); }
    status_line* statusLbl() { return status_; }

    void show_running(bool running);
    // The last report, if any.
    void show_report();

    std::function<void()> on_read, on_cancel;

  private:
    QPushButton* add_button(const char* name, std::string_view key, std::function<void()> press);
    QCheckBox* add_switch(const char* name, std::string_view key, const char* setting,
                          bool on_when);
    void show_sheet();
    // What is shown and exported.
    report_sheet sheet_to_export() const;
    void save();
    void print();
    void copy();
    void open();
    void compare();
    bool read_report(std::string_view title, car_report& to);
    void tell(const std::string& message);

    Ks_lite_delegate& delegate_;
    const mac_toolies& toolies_;
    std::unique_ptr<QWidget> root_;
    status_line* status_ = nullptr;
    busy_indicator* waity_ = nullptr;
    QPushButton* read_ = nullptr;
    QPushButton* save_ = nullptr;
    QPushButton* print_ = nullptr;
    QPushButton* copy_ = nullptr;
    QPushButton* compare_ = nullptr;
    QTextBrowser* sheet_ = nullptr;
    std::optional<car_report> before_; // that the last one is compared with
    bool running_ = false;
};

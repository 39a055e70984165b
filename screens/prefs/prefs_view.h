// The widgets of the preferences screen. Owned by prefs, which fills and reads them.
#pragma once

#include "serial_port_list.h"

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class Ks_lite_delegate;
class rows_model;
class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QRadioButton;
class QTableView;
class QWidget;

class prefs_view {
  public:
    struct pid_row {
        bool selected;
        std::string name;
    };

    explicit prefs_view(Ks_lite_delegate& delegate);
    ~prefs_view();

    QWidget* root() { return root_.get(); }

    std::function<void()> on_wifi, on_bluetooth, on_serial, on_metric, on_defaults;
    std::function<void(int row)> on_row;

    // Rows are those of the table of transports.
    void select_interface(std::size_t row);
    std::size_t interface_row() const;
    void show_panel(); // of the selected one
    void set_address(const std::string& address, const std::string& port);
    std::string address() const;
    std::string port() const;
    void set_serial(const std::string& path, int speed);
    void show_serial_ports(std::vector<serial_port_entry> ports);
    std::string serial_port() const;
    int serial_speed() const; // 0: found by trying
    void set_metric_units(bool on);
    bool metric_units() const;
    void set_log_runs(bool on);
    bool log_runs() const;
    void set_reuse_last_adapter(bool on);
    bool reuse_last_adapter() const;
    void set_language(const std::string& code); // empty: the desktop's
    std::string language() const;
    void set_pids_status(const std::string& text);
    void show_pids(std::vector<pid_row> rows);

  private:
    QWidget* build_adapter();
    QWidget* build_bluetooth_panel(QWidget* group);
    QWidget* build_wifi_panel(QWidget* group);
    QWidget* build_serial_panel(QWidget* group);
    QWidget* build_display();
    QWidget* build_language();
    QWidget* build_parameters();

    Ks_lite_delegate& delegate_;
    std::vector<pid_row> pids_; // read by the table up to its end
    std::unique_ptr<QWidget> root_;
    std::array<QRadioButton*, 3> interfaces_{};
    std::array<QWidget*, 3> panels_{};
    QComboBox* serial_port_ = nullptr;
    QComboBox* serial_speed_ = nullptr;
    std::vector<serial_port_entry> ports_; // as shown
    std::string chosen_port_;
    QLineEdit* ipLbl_ = nullptr;
    QLineEdit* portsLbl_ = nullptr;
    QCheckBox* lastBTCheck_ = nullptr;
    QCheckBox* unitsCheck_ = nullptr;
    QCheckBox* logRunsCheck_ = nullptr;
    QComboBox* language_ = nullptr;
    QLabel* pidsStatus_ = nullptr;
    QTableView* pid_availableTableView_ = nullptr;
    rows_model* pids_model_ = nullptr;
};

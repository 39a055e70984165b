// The dialog in which the user picks the Bluetooth adapter. It searches, lists paired and found
// devices, and closes when connected: a device that does not answer, refuses or has no serial port
// is reported here, where another can be picked.
#pragma once

#include "bluez_connection.h"
#include "bluez_devices.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

#include <memory>
#include <string>
#include <vector>

class bundle;
class busy_indicator;
class empty_hint;
class rows_model;
class QLabel;
class QPushButton;
class QTableView;

// A device's own name, on one line.
QString one_line(const std::string& name);

class device_chooser final : public QDialog {
    Q_OBJECT
  public:
    // `last_address`: selected first if present; may be empty.
    device_chooser(QWidget* parent, bluez_devices& devices, const bundle& texts,
                   std::string last_address);
    ~device_chooser() override;

    // The connection to the chosen device; null unless accepted.
    std::unique_ptr<bluez_connection> take_connection() { return std::move(connection_); }

    void reject() override;

  private:
    QString text(const char* key) const;
    QWidget* build_foot();
    void build_table();
    void refresh();
    void show_state();
    QString state_text() const;
    void select(const std::string& address);
    const bluetooth_entry* selected() const;
    QString cell(int row, const QString& column) const;
    void search();
    void connect_selected();
    void connection_done();

    bluez_devices& devices_;
    const bundle& texts_;
    std::string last_address_;
    std::vector<bluetooth_entry> entries_;
    std::unique_ptr<bluez_connection> connection_;
    std::string connecting_name_;
    QString failure_; // of the last attempt
    QElapsedTimer since_;
    QTimer refresh_soon_, tick_;

    rows_model* model_ = nullptr;
    QTableView* table_ = nullptr;
    empty_hint* hint_ = nullptr;
    QLabel* state_ = nullptr;
    busy_indicator* waity_ = nullptr;
    QPushButton* search_ = nullptr;
    QPushButton* connect_ = nullptr;
};

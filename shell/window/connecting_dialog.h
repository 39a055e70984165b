// Shown while a Bluetooth adapter is connected without the chooser. Closes when the attempt has
// succeeded or failed, or when the user cancels.
#pragma once

#include <QDialog>
#include <QElapsedTimer>
#include <QTimer>

class bluez_connection;
class bundle;

class connecting_dialog final : public QDialog {
  public:
    // `device`: the device's own name.
    connecting_dialog(QWidget* parent, const bluez_connection& connection, const bundle& texts,
                      const std::string& device);

  private:
    QElapsedTimer since_;
    QTimer tick_;
};

// Looks up trouble codes as the user types, without a car. Owned by the main window, which stays
// usable.
#pragma once

#include <QDialog>

class Ks_lite_delegate;
class QLabel;
class QLineEdit;
class QTableWidget;

class lookup_window final : public QDialog {
  public:
    lookup_window(Ks_lite_delegate& delegate, QWidget* parent);

    void open_beside();

  private:
    void build_table();
    void look_up(const QString& text);

    Ks_lite_delegate& delegate_;
    QLineEdit* search_ = nullptr;
    QTableWidget* codes_ = nullptr;
    QLabel* status_ = nullptr;
};

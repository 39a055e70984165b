// Chooses parameters beyond those of the preferences for log runs: all that can be decoded, with
// those that this car supports marked once it has reported them. Not modal for the run loop:
// replies still arrive. Destroys itself when it is closed.
#pragma once

#include <QDialog>

#include <functional>

class actions;
class Ks_lite_delegate;
class QLabel;
class QLineEdit;
class QPushButton;
class QTreeWidget;
class QVBoxLayout;

class more_parameters final : public QDialog {
  public:
    more_parameters(Ks_lite_delegate& delegate, class actions& screen, QWidget* parent);

    // Called when the choice is in the settings.
    std::function<void()> chosen;

    void accept() override;

  private:
    void build_list(QVBoxLayout* column);
    void build_foot(QVBoxLayout* column);
    void fill_list();
    void filter(const QString& words);
    void ask();
    void mark_supported();

    Ks_lite_delegate& delegate_;
    class actions& screen_; // QWidget has an operation of that name
    QLineEdit* search_ = nullptr;
    QTreeWidget* list_ = nullptr;
    QLabel* status_ = nullptr;
    QPushButton* ask_ = nullptr;
};

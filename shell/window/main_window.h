// The main window: a rail of switches on the left, the chosen screen beside it, or the background
// picture. Created by main over the delegate, which outlives it.
#pragma once

#include <QMainWindow>

#include <functional>

class export_window;
class lookup_window;
class Ks_lite_delegate;
class QButtonGroup;
class QVBoxLayout;
class background_picture;

class main_window final : public QMainWindow {
  public:
    explicit main_window(Ks_lite_delegate& delegate);
    ~main_window() override;

    // On a first start: ways to begin. `start_demo` makes the built-in car the adapter.
    void offer_first_steps(std::function<void()> start_demo);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void build_menu();
    void show_about();
    QWidget* build_rail();
    void shade_rail();
    void follow_screen();
    void restore_place();

    Ks_lite_delegate& delegate_;
    QWidget* rail_ = nullptr;
    QWidget* mainView = nullptr;
    background_picture* back_pic = nullptr;
    QButtonGroup* switches_ = nullptr;
    export_window* export_window_ = nullptr; // made on first use
    lookup_window* lookup_window_ = nullptr;
};

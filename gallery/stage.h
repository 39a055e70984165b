// One state of the program, ready to be rendered: the application in its real window, on a virtual
// clock, linked to a virtual car. With the same fonts, the same state always gives the same
// picture.
#pragma once

#include "app_harness.h"
#include "car_library.h"
#include "faults.h"
#include "main_window.h"
#include "virtual_adapter.h"

#include <QImage>
#include <QPointer>
#include <QString>

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

class stage;

struct scene {
    std::string_view name;
    std::string_view what; // its line in the index
    void (*play)(stage&);
    std::string_view car = "can11";
    std::vector<fault> faults = {};
    void (*settings)(user_defaults&) = app_harness::use_wifi;
};

// Every state, in index order.
const std::vector<scene>& scenes();

class stage {
  public:
    stage(const scene& shown, const std::string& language, QSize size);
    ~stage();

    void pass(double seconds);
    // Presses a button of the screen, then lets the given time pass.
    void press(const char* button, double seconds) {
        app.press(button);
        pass(seconds);
    }
    // Chooses an answer other than the first for the next message box.
    void answer(int button) { app.messages.answers.push_back(button); }
    // The picture shows this dialog above the window.
    void show_dialog(QWidget* dialog);
    // The picture is that of the next message box.
    void look_at_message() { looks_at_message_ = true; }
    // Stops the clock.
    void freeze() { frozen_ = true; }
    // Lets the event loop run until nothing is left to paint.
    void settle();

    const QImage& picture();
    // The layout rules that the window and the dialog break.
    const std::vector<std::string>& complaints() const { return complaints_; }

    car the_car;
    virtual_adapter adapter;
    app_harness app;
    main_window window;

  private:
    void take_picture(QWidget* dialog);
    void hide_folder(QWidget& in);
    void show_message(const alert_request& request);

    QPointer<QWidget> dialog_;
    bool looks_at_message_ = false;
    bool frozen_ = false;
    QImage picture_;
    std::vector<std::string> complaints_;
};

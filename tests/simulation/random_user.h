// A user who presses whatever can be pressed, in an order determined by a seed. One act is one
// press, or a wait.
#pragma once

#include "application.h"
#include "promises.h"
#include "rng.h"

#include <string>

class random_user {
  public:
    random_user(application& app, promises& kept, std::uint64_t seed);

    void act();
    // What a user does when nothing else helps: other settings and back.
    void change_port_and_back();
    void sample_fast();
    void read_codes();

  private:
    void switch_screen();
    void show_some_screen();
    void use_codes();
    void use_report();
    void use_live_data();
    void use_preferences();
    void use_console();
    void export_a_log();
    void choose_other_adapter();
    void wait();
    void press(const char* name);
    void expect_answer(const char* what, std::uint64_t before);
    void answer_dialogs();

    application& app_;
    promises& promises_;
    rng rng_;
};

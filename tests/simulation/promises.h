// What has to hold in every session, whatever happens. Watches one start of the program.
#pragma once

#include "application.h"

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

class actions;
class readCodes;
struct codes_report;
class report_screen;
struct asked_piece;

class promises {
  public:
    // Before application::start(), and the second half after.
    explicit promises(application& app);
    ~promises();
    void started();

    // Between two deliveries, as often as one likes.
    void hold_now();
    // No more faults: after the time-outs every screen is idle or sampling.
    void come_to_rest();
    // The screen has been left: neither timers nor files of it are open.
    void nothing_outlives_its_screen();
    // The run logs of the folder hold what was announced.
    void logs_are_complete(const std::string& folder);
    // The trouble-codes screen shows that car, exactly.
    void shows(const truth& car);

    // Somebody else has touched the logs of the folder: nothing is known of them any more.
    void forget_logs();
    // The button of the live-data screen has started a run.
    void run_begins();
    // Of the trouble-codes screen: a task begins.
    void task_begins(std::uint64_t moment) { task_began_ = moment; }
    // Of the report's screen: a reading begins.
    void report_begins() {
        report_began_ = app_.book.moment();
        report_checked_ = false;
    }
    // A message box is open.
    void told(const std::string& message);
    // Live data of a healthy car, and the console: both work again.
    void answers_again();

  private:
    void delivery_begins();
    void delivery_ends();
    void screen_changed();
    void cycle_announced(actions& screen);
    void codes_are_true(readCodes& screen);
    void none_means_none(readCodes& screen, const codes_report& shown);
    bool code_was_sent(const std::string& code) const;
    bool car_told(const std::function<bool(const truth&)>& fits,
                  const std::function<bool(const std::string& digits)>& reads) const;
    bool count_was_sent(int count) const;
    void status_is_true(const codes_report& shown);
    // report_promises.cpp
    void report_is_true(const report_screen& screen);
    void nothing_is_invented(const asked_piece& piece);
    void nothing_is_lost(const asked_piece& piece);

    void samples_are_true(actions& screen);
    bool sample_was_sent(actions& screen, std::size_t row, std::size_t place,
                         const std::string& text);
    bool was_answered(const std::string& pid, const std::string& text) const;

    struct run_record {
        std::vector<std::vector<std::string>> cycles; // the replies as they were filed
        bool failed = false;
        bool removed = false;
    };

    application& app_;
    notification_center::observer_id before_ = 0, after_ = 0;
    int depth_ = 0;
    std::uint64_t delivery_began_ = 0;
    std::uint64_t task_began_ = 0;
    std::uint64_t report_began_ = 0;
    bool report_checked_ = false;
    std::string codes_shown_, status_shown_;
    bool end_checked_ = false; // of the reading shown
    std::vector<std::string> states_shown_;
    std::uint64_t answers_seen_ = 0;
    std::pair<std::size_t, std::size_t> checked_; // row and place up to which samples were
    std::map<std::string, run_record> logs_;
};

// Reads everything that a car reports about itself, one question after the other on the run loop,
// never blocking. A failed question does not affect others; what was received before the end is
// kept. Owned by the owner of the door.
#pragma once

#include "conversation.h"
#include "questions.h"
#include "run_loop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// Access to an initialised adapter with its echo off. The door handles owed replies: one must never
// be taken for the answer to the next request.
class adapter_door {
  public:
    // A complete reply with its prompt; nothing if none came in time.
    using answered = std::function<void(std::optional<std::string> reply)>;

    virtual ~adapter_door() = default;
    virtual void ask(const std::string& command, run_loop::milliseconds bound, answered told) = 0;
    // Stops waiting for the reply; `told` is not called.
    virtual void give_up() = 0;
};

class car_reader {
  public:
    using milliseconds = run_loop::milliseconds;
    static constexpr milliseconds LONGEST_READING{300'000};

    car_reader(run_loop& loop, adapter_door& door) : loop_(loop), door_(door) {}
    ~car_reader();
    car_reader(const car_reader&) = delete;
    car_reader& operator=(const car_reader&) = delete;

    // The current topic, and how many of the questions known so far have been asked.
    std::function<void(topic about, std::size_t asked, std::size_t wanted)> progress;
    std::function<void()> done;

    // `heard`: when and by whom; its pieces are read now.
    void start(conversation heard);
    void cancel() { stop(reading_end::cancelled); }
    void link_lost() { stop(reading_end::link_lost); }
    bool running() const { return running_; }
    // The adapter's wait was lengthened, which only a reset undoes.
    bool made_adapter_patient() const { return patient_; }
    const conversation& heard() const { return heard_; }

  private:
    void next();
    void ask();
    void wait_long(bool patient, std::function<void()> go_on);
    void take(std::optional<std::string> reply);
    void take_words(const std::string& reply);
    void take_data(const std::string& reply);
    void keep(const unit_reply& told, std::vector<unit_reply>& in);
    void keep_unread(unread_kind kind, std::string_view text);
    bool worth_repeating() const;
    bool somebody_silent() const;
    bool somebody_missed() const;
    void repeat();
    void finish_piece();
    void stop(reading_end how);
    void finish(reading_end how);

    run_loop& loop_;
    adapter_door& door_;
    conversation heard_;
    bool running_ = false;
    bool patient_ = false;
    milliseconds began_{0}, piece_began_{0};
    std::optional<question> asked_;
    asked_piece piece_;
    int tries_ = 0;
    int silent_ = 0; // consecutive questions that timed out
    run_loop::timer_id waiting_ = 0;
};

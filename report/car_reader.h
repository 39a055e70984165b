// Reads everything that a car reports about itself, one question after the other on the run loop,
// without blocking. A failed question does not affect the others; what was received before the
// reading ended is kept. Owned by the owner of the door.
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
    virtual void ask(const std::string& command, run_loop::milliseconds bound,
                     answered on_reply) = 0;
    // Stops waiting for the reply; `on_reply` is not called.
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

    // `transcript`: with date and program, but without pieces.
    void start(conversation transcript);
    void cancel() { stop(reading_end::cancelled); }
    void link_lost() { stop(reading_end::link_lost); }
    bool running() const { return running_; }
    // The adapter's time-out was lengthened; only a reset undoes this.
    bool extended_wait() const { return wait_extended_; }
    const conversation& transcript() const { return transcript_; }

  private:
    void next();
    void ask();
    void set_wait(bool extended, std::function<void()> go_on);
    void take(std::optional<std::string> reply);
    void take_words(const std::string& reply);
    void take_data(const std::string& reply);
    void keep(const unit_reply& reply, std::vector<unit_reply>& in);
    void keep_unread(unread_kind kind, std::string_view text);
    bool worth_repeating() const;
    bool unit_silent() const;
    bool unit_missing() const;
    void repeat();
    void finish_piece();
    void stop(reading_end how);
    void finish(reading_end how);

    run_loop& loop_;
    adapter_door& door_;
    conversation transcript_;
    bool running_ = false;
    bool wait_extended_ = false;
    milliseconds began_{0}, piece_began_{0};
    std::optional<question> asked_;
    asked_piece piece_;
    int tries_ = 0;
    int silent_ = 0; // consecutive questions that timed out
    run_loop::timer_id waiting_ = 0;
};

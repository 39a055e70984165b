// Reads all that a car tells of itself, one question after the other on the run loop, never
// blocking. A question that fails voids nothing; what was heard until an end is kept. Owned by
// whoever owns the door.
#pragma once

#include "conversation.h"
#include "questions.h"
#include "run_loop.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

// The way to an adapter that is up, with its echo off. An owed reply is the door's business: it
// must never be taken for the answer to what is asked next.
class adapter_door {
  public:
    // A whole reply up to its prompt; nothing when none came in time.
    using answered = std::function<void(std::optional<std::string> reply)>;

    virtual ~adapter_door() = default;
    virtual void ask(const std::string& command, run_loop::milliseconds bound, answered told) = 0;
    // What was asked is awaited no more; `told` is not called.
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

    // What is asked about, and how much of what is wanted by now has been asked.
    std::function<void(topic about, std::size_t asked, std::size_t wanted)> progress;
    std::function<void()> done;

    // `heard`: when and by whom; its pieces are read now.
    void start(conversation heard);
    void cancel() { stop(reading_end::cancelled); }
    void link_lost() { stop(reading_end::link_lost); }
    bool running() const { return running_; }
    const conversation& heard() const { return heard_; }

  private:
    void next();
    void ask();
    void take(std::optional<std::string> reply);
    void take_words(const std::string& reply);
    void take_data(const std::string& reply);
    void keep(const unit_reply& told, std::vector<unit_reply>& in);
    void keep_unread(unread_kind kind, std::string_view text);
    bool worth_repeating() const;
    void repeat();
    void finish_piece();
    void stop(reading_end how);
    void finish(reading_end how);

    run_loop& loop_;
    adapter_door& door_;
    conversation heard_;
    bool running_ = false;
    milliseconds began_{0}, piece_began_{0};
    std::optional<question> asked_;
    asked_piece piece_;
    int tries_ = 0;
    int silent_ = 0; // questions in a row that ran into their time-out
    run_loop::timer_id waiting_ = 0;
};

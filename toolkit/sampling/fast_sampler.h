// Chooses the requests of a fast run and decides which replies can be filed. It sends nothing and
// has no clock: given a reply and the time, it returns what to file and what to request next.
//
// It begins like plain sampling, learns what each parameter's answer looks like, and then tries two
// things, each used only once proven on this connection: a digit after the request, by which the
// adapter stops waiting after that many frames, and on CAN up to six parameters in one request.
// Tries are separate requests between two cycles; their replies are not filed. A reply with
// anything odd about it is discarded entirely. Each reply is filed one reply later: only the next
// one shows whether it was out of step.
#pragma once

#include "strict_reply.h"

#include <chrono>
#include <deque>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class fast_sampler {
  public:
    using milliseconds = std::chrono::milliseconds;

    // `pids`: of one cycle, two capital hex digits each. `can`: whether the bus is CAN, as far as
    // known. `most_a_second`: limit of requests on CAN; 0 for none.
    fast_sampler(const std::vector<std::string>& pids, bool can, int most_a_second);

    struct question {
        std::string command;
        milliseconds pause; // before it is sent
    };
    question next(milliseconds now);
    void sent(milliseconds now) { sent_at_ = now; }

    struct sample {
        std::string pid;
        std::string reply; // as if requested alone, "410C1AF8"; "~" if discarded, or "NODATA"
    };
    enum class news { none, stepped_down, given_up };
    struct outcome {
        std::vector<sample> samples;
        bool ends_cycle = false;
        bool answer_is_missing = false; // the adapter owes one more reply than expected
        news change = news::none;
    };
    outcome take(std::string_view reply, milliseconds now);
    // No prompt came; anything that still arrives is ignored.
    outcome timed_out(milliseconds now);

    // Nothing can be gained, or too much went wrong: the rest of the run is plain. Only at the end
    // of a cycle.
    bool finished() const { return ending_ && cursor_ == 0 && resync_ == resync::none; }
    // How long plain sampling then pauses between requests: a car that complained is asked half as
    // often.
    milliseconds pause_afterwards() const { return afterwards_; }

    // 0 plain, 1 the digit, 2 several parameters per request, 3 both.
    int level() const;
    // Commands that restore the adapter for other tasks.
    static std::span<const std::string_view> restoring_commands();

  private:
    struct shape {                                       // of a reply
        std::vector<std::pair<std::string, int>> frames; // by unit
        std::vector<std::string> order;                  // of the parameters
        bool operator==(const shape&) const = default;
        int all_frames() const;
    };
    struct answer {
        shape form;
        std::string source; // unit
        std::vector<parameter_answer> parts;
    };
    enum class digit_use { untried, proven, never };
    struct request {
        std::vector<std::string> pids;
        std::vector<shape> seen{};    // of plain requests, until it is known
        std::optional<shape> known{}; // seen three times
        std::vector<milliseconds> plain_times{}, digit_times{};
        digit_use digit = digit_use::untried;
        int asked_since_plain = 0;
        milliseconds plain_at{0};
        bool relearned = false;

        std::string command() const;
        bool learnt() const { return known || digit == digit_use::never; }
    };
    enum class kind { setup, flush, in_step, plan, try_several, try_digit };
    enum class stage { learning, trying_several, comparing, running };
    enum class resync { none, flush, in_step };
    struct attempt {
        kind what;
        request* asked;
    };

    // fast_sampler.cpp
    question ask(kind what, std::string command, milliseconds now, request* asked = nullptr,
                 bool digit = false);
    question ask_plan(milliseconds now);
    milliseconds pause(milliseconds now) const;
    milliseconds rest() const; // between an answer and the next request
    bool due_plain(const request& one, milliseconds now) const;
    void take_setup(std::string_view reply, outcome& out);
    void settle_bus(outcome& out);
    void abandon_cycle(outcome& out);
    void take_in_step(std::string_view reply, outcome& out);
    void take_plan(std::string_view reply, outcome& out);
    bool is_out_of_step(const strict_reply& read, const std::vector<sample>& taken) const;
    static void discard(outcome& out);
    void file(request& one, const answer& got);
    void void_reply(request& one, outcome& out);
    void count_void(outcome& out);
    void learn(request& one, const shape& form);
    void relearn(request& one);
    milliseconds exchange() const { return answered_at_ - sent_at_; }
    void advance(outcome& out);
    void cycle_ended(outcome& out);
    void end_when_plain(outcome& out);
    void step_down(outcome& out);
    void give_up(outcome& out);
    std::optional<answer> read_answer(const request& asked, std::string_view reply, outcome& out);
    std::optional<answer> answer_of(const request& asked, const strict_reply& read) const;
    std::vector<parameter_answer> parts_of(const request& asked, const std::string& data) const;
    bool is_can() const { return bus_ >= '6' && bus_ <= '9'; }
    bool may_use_digit() const { return digit_works_ && level_cap_ % 2 == 1; }

    // fast_sampler_probes.cpp
    void begin_several();
    void group();
    void queue_groups();
    void run();
    void take_try(std::string_view reply, outcome& out);
    void several_tried(request& one, const std::optional<answer>& got);
    void several_fail();
    void compare();
    bool differs(const std::string& pid) const;
    void slow_down(outcome& out);
    void queue_digits();
    void digit_fails(request& one);
    void digit_tried(request& one, const std::optional<answer>& got);

    bool can_;
    int most_a_second_;
    std::deque<request> requests_; // never erased: plan and tries hold pointers into it
    std::vector<request*> plan_, singles_, groups_;
    std::size_t cursor_ = 0;
    std::deque<attempt> tries_;
    std::size_t setup_next_ = 0;
    char bus_ = '0';          // from "AT DPN"
    char reported_bus_ = '0'; // its latest answer, may be "?"
    stage stage_ = stage::learning;
    resync resync_ = resync::none;
    outcome unconfirmed_; // of the last reply, until the next shows that it was in step

    kind asked_ = kind::setup;
    request* asked_request_ = nullptr;
    bool asked_digit_ = false;
    std::string asked_command_;
    request* last_of_car_ = nullptr; // since the last command with an unmistakable answer
    std::string notice_;             // of the last reply to a plan's request or a try
    milliseconds sent_at_{0}, answered_at_{0};
    milliseconds last_request_{0}, last_answer_{0}; // of the car

    digits_by_pid lengths_;
    std::map<std::string, std::string, std::less<>> sources_;        // unit by PID
    std::map<std::string, std::string, std::less<>> before_, after_; // values by PID
    std::map<std::string, std::vector<std::string>, std::less<>> tried_;
    std::size_t group_size_ = 0;
    int compared_ = 0; // cycles
    bool digit_works_ = true, wants_singles_ = false, was_faster_ = false;
    int level_cap_ = 3;
    bool ending_ = false;
    milliseconds afterwards_{0};
    int count_ = 0, last_void_ = 0, // requests to the car, flushes aside
        steps_missed_ = 0;
    bool voided_ = false;   // recently, on this level
    bool deferred_ = false; // "7F 01 78"
};

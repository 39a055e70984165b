// How the kinds of run of the live-data screen differ: the parameters they show, what they request
// from the car, and what they compute from it. The request cycle belongs to the screen. No widgets.
#pragma once

#include "mac_toolies.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// One request of a cycle: the parameter requested, and the place in the run's list of parameters
// where the answer, or what is computed from it, is filed.
struct sample_request {
    std::string pid;
    int place;
};

struct computed_sample {
    int place;
    std::string reply; // as an adapter would answer, without blanks
};

class live_run {
  public:
    virtual ~live_run() = default;

    // The parameters shown, two-digit hex text each. Nothing: whatever the last answer to
    // first_question() named, or the list as it was.
    virtual std::optional<std::vector<std::string>>
    parameters(const user_defaults& store) const = 0;

    // False: it ends with its questions.
    virtual bool samples() const { return true; }
    // Asked once before the first cycle; nothing if there is no (further) question.
    virtual std::optional<std::string> first_question() { return std::nullopt; }
    // The raw reply; its first line follows.
    virtual void whole_reply_came(std::string_view reply) { (void)reply; }
    // The answer, without blanks. May lead to another question, or to the parameters to show.
    virtual void first_question_answered(std::string_view reply) { (void)reply; }
    virtual std::optional<std::vector<std::string>> parameters_found() const {
        return std::nullopt;
    }

    // The requests of one cycle.
    virtual std::vector<sample_request> requests(const std::vector<std::string>& parameters) const;
    // What is filed for a usable or unusable answer to a request.
    virtual std::string reply_to_file(const sample_request& asked, const std::string& reply) {
        (void)asked;
        return reply;
    }
    // After the last request of a cycle: what is computed from its answers.
    virtual std::optional<computed_sample> cycle_answered() { return std::nullopt; }
};

// The run of a task number: run log, fuel consumption, boost or oxygen sensors. `toolies` must
// outlive it.
std::unique_ptr<live_run> make_live_run(int task, const mac_toolies& toolies);

// The tasks in the order of the run selector, with the keys of its texts.
struct run_choice {
    int task;
    const char* key;
};
std::span<const run_choice> run_choices();

// Oxygen-sensor parameters (14 to 1B) that an answer to 01 13 or 01 1D reports; empty when it
// cannot be read (SAE J1979).
std::vector<std::string> oxygen_sensors_in(std::string_view reply);

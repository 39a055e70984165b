// Tries between the cycles: several parameters in one request, and the digit after a request.
#include "answer_sizes.h"
#include "fast_sampler.h"
#include "hex_digits.h"
#include "standard_values.h"

#include <algorithm>
#include <array>

namespace {

using std::chrono::milliseconds;

constexpr std::size_t MOST_OF_A_REQUEST = 6; // ISO 15765-4
constexpr std::size_t PAIR = 2;
constexpr int TIMES_TRIED = 3;
constexpr int MOST_FRAMES = 15; // one digit
constexpr milliseconds CLEARLY{2};
constexpr milliseconds LONGEST_PAUSE{300};

// Parameters that change slowly: their value in a combined request must lie between those of single
// requests before and after.
constexpr std::array<std::string_view, 10> SLOW{"05", "0F", "1C", "21", "30",
                                                "31", "33", "46", "51", "5C"};

// The answer's length must be known and the same in every car; bitmaps cannot be mixed with values.
bool may_be_grouped(std::string_view pid) {
    const unsigned number = hex_value(pid);
    const answer_length standard = standard_length(number);
    return number % 0x20 != 0 && standard.or_bytes == 0 &&
           parameter_bytes(number).value_or(standard.bytes) > 0;
}

milliseconds median(std::vector<milliseconds> times) {
    std::ranges::sort(times);
    return times[times.size() / 2];
}

} // namespace

void fast_sampler::begin_several() {
    group_size_ = MOST_OF_A_REQUEST;
    if (is_can())
        group();
    if (groups_.empty()) {
        run();
        return;
    }
    stage_ = stage::trying_several;
    if (const auto& pids = groups_.front()->pids; pids.size() > PAIR) {
        requests_.push_back({{pids[0], pids[1]}});
        tries_.push_back({kind::try_several, &requests_.back()});
    }
    queue_groups();
}

// Parameters of the same unit, in order.
void fast_sampler::group() {
    groups_.clear();
    std::map<std::string, std::vector<std::string>> by_unit;
    for (const request* one : singles_)
        if (const auto source = sources_.find(one->pids.front());
            source != sources_.end() && one->known && may_be_grouped(one->pids.front()))
            by_unit[source->second].push_back(one->pids.front());
    for (const auto& [unit, pids] : by_unit)
        for (std::size_t at = 0; at + 1 < pids.size(); at += group_size_) {
            const std::size_t end = std::min(at + group_size_, pids.size());
            requests_.push_back({{pids.begin() + static_cast<std::ptrdiff_t>(at),
                                  pids.begin() + static_cast<std::ptrdiff_t>(end)}});
            groups_.push_back(&requests_.back());
        }
}

void fast_sampler::queue_groups() {
    for (request* one : groups_)
        for (int i = 0; i < TIMES_TRIED; ++i)
            tries_.push_back({kind::try_several, one});
}

void fast_sampler::run() {
    stage_ = stage::running;
    queue_digits();
    ending_ = tries_.empty() && level() == 0;
}

void fast_sampler::take_try(std::string_view reply, outcome& out) {
    const std::optional<answer> got = read_answer(*asked_request_, reply, out);
    if (!got)
        resync_ = resync::flush;
    if (deferred_)
        slow_down(out);
    else if (asked_ == kind::try_digit)
        digit_tried(*asked_request_, got);
    else
        several_tried(*asked_request_, got);
}

void fast_sampler::several_tried(request& one, const std::optional<answer>& got) {
    if (!got || (!one.seen.empty() && one.seen.front() != got->form)) {
        several_fail();
        return;
    }
    learn(one, got->form);
    for (const parameter_answer& part : got->parts)
        tried_[part.pid].push_back(part.reply);
    if (tries_.empty())
        stage_ = stage::comparing; // after one more cycle
}

void fast_sampler::several_fail() {
    const bool pair_works = asked_request_->pids.size() > PAIR;
    tries_.clear();
    groups_.clear();
    if (pair_works) {
        group_size_ = PAIR;
        group();
        queue_groups();
    } else {
        run();
    }
}

// Whether a slow parameter had another value in a combined request than alone.
bool fast_sampler::differs(const std::string& pid) const {
    const auto after = after_.find(pid);
    if (std::ranges::find(SLOW, pid) == SLOW.end())
        return false;
    if (after == after_.end())
        return true;
    const std::string &low = std::min(before_.at(pid), after->second),
                      &high = std::max(before_.at(pid), after->second);
    return std::ranges::any_of(
        tried_.at(pid), [&](const std::string& tried) { return tried < low || tried > high; });
}

// A value missing because of a void reply may come in the next cycle.
void fast_sampler::compare() {
    std::vector<std::string> grouped;
    for (const request* one : groups_)
        grouped.insert(grouped.end(), one->pids.begin(), one->pids.end());
    const bool all_answered = std::ranges::all_of(
        grouped, [this](const std::string& pid) { return after_.contains(pid); });
    if (!all_answered && ++compared_ < TIMES_TRIED)
        return;
    if (std::ranges::none_of(grouped, [this](const auto& pid) { return differs(pid); })) {
        plan_ = groups_;
        for (request* one : singles_)
            if (std::ranges::find(grouped, one->pids.front()) == grouped.end())
                plan_.push_back(one);
    }
    run();
}

// Halves the rate for a car that complains or defers its answers.
void fast_sampler::slow_down(outcome& out) {
    std::vector<milliseconds> times{exchange()};
    for (const request* one : singles_)
        times.insert(times.end(), one->plain_times.begin(), one->plain_times.end());
    // The median, since the failed exchange itself took longer than usual.
    afterwards_ = std::clamp(median(std::move(times)), milliseconds(1), LONGEST_PAUSE);
    tries_.clear();
    give_up(out);
}

void fast_sampler::queue_digits() {
    if (!may_use_digit())
        return;
    for (request* one : plan_) {
        const int frames = one->known ? one->known->all_frames() : 0;
        if (one->digit == digit_use::untried && frames > 0 && frames <= MOST_FRAMES)
            for (int i = 0; i < TIMES_TRIED; ++i)
                tries_.push_back({kind::try_digit, one});
    }
}

// The digit is used if the reply is the same and clearly faster.
void fast_sampler::digit_tried(request& one, const std::optional<answer>& got) {
    if (!got || got->form != *one.known) {
        digit_fails(one);
        return;
    }
    one.digit_times.push_back(exchange());
    if (one.digit_times.size() < TIMES_TRIED)
        return;
    // On J1850 the pause before the next request costs more than the digit saves.
    if (median(one.digit_times) + CLEARLY + rest() <= median(one.plain_times) * 19 / 20) {
        one.digit = digit_use::proven;
        one.plain_at = answered_at_; // counts as a plain request
    } else {
        digit_fails(one);
    }
}

// The first failure is put down to the adapter, a later one to this request.
void fast_sampler::digit_fails(request& one) {
    digit_works_ = std::ranges::any_of(
        plan_, [](const request* each) { return each->digit == digit_use::proven; });
    one.digit = digit_use::never;
    resync_ = resync::flush;
    std::erase_if(tries_, [&](const attempt& each) { return !digit_works_ || each.asked == &one; });
}

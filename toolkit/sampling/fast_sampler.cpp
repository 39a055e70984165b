// The order of requests and the handling of replies.
#include "fast_sampler.h"

#include "reply_lines.h"
#include "sample_reply.h"
#include "text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

using std::chrono::milliseconds;

// A "?" to any of them is harmless: the reader copes with blanks and line feeds. The last one
// reports the bus; no car answers like that, so it also shows whether replies are in step with
// requests.
constexpr std::array<std::string_view, 6> SETUP{"ATST32", "ATAT1", "ATS0", "ATL0", "ATH1", "ATDPN"};
constexpr std::array<std::string_view, 3> FAREWELL{"AT ST 32", "AT H0", "AT S1"};
constexpr std::string_view IN_STEP = "ATDPN";
constexpr std::string_view FLUSH = "0100"; // plain: it waits for anything a unit still has to send

constexpr std::size_t HEAD_DIGITS = 4; // "41" and the parameter
constexpr std::size_t TIMES_ALIKE = 3;
constexpr int VOID_WITHIN = 20;
constexpr int MOST_STEPS_MISSED = 5;
constexpr int CHECKED_EVERY = 200;
constexpr milliseconds CHECKED_AFTER{30'000};
constexpr milliseconds J1850_PAUSE{100}; // SAE J1850 before 2002: no requests within 100 ms

// "6" for "A6"; "?" if the adapter does not know the command; 0 if the reply answers something
// else.
char bus_reported_in(std::string_view reply) {
    std::vector<std::string> lines = reply_lines(reply);
    if (!lines.empty() && lines.front() == IN_STEP)
        lines.erase(lines.begin());
    if (lines.size() != 1)
        return 0;
    std::string_view text = lines.front();
    if (text.size() == 2 && text.front() == 'A')
        text.remove_prefix(1);
    return text.size() == 1 && (is_hex(text) || text == "?") ? text.front() : '\0';
}

bool is_complaint(std::string_view notice) {
    return notice == "CANERROR" || notice == "FBERROR" || notice == "BUSBUSY" ||
           notice == "BUSERROR";
}

} // namespace

fast_sampler::fast_sampler(const std::vector<std::string>& pids, bool can, int most_a_second)
    : can_(can), most_a_second_(most_a_second) {
    for (const std::string& pid : pids)
        if (std::ranges::none_of(requests_, [&](const request& one) { return one.pids[0] == pid; }))
            requests_.push_back({{pid}});
    for (request& one : requests_)
        singles_.push_back(&one);
    plan_ = singles_;
}

std::span<const std::string_view> fast_sampler::restoring_commands() {
    return FAREWELL;
}

int fast_sampler::shape::all_frames() const {
    int all = 0;
    for (const auto& [unit, count] : frames)
        all += count;
    return all;
}

std::string fast_sampler::request::command() const {
    std::string digits = "01";
    for (const std::string& pid : pids)
        digits += pid;
    return digits;
}

int fast_sampler::level() const {
    const bool digit = std::ranges::any_of(plan_, [this](const request* one) {
        return may_use_digit() && one->digit == digit_use::proven;
    });
    const bool several =
        std::ranges::any_of(plan_, [](const request* one) { return one->pids.size() > 1; });
    return (digit ? 1 : 0) + (several ? 2 : 0);
}

fast_sampler::question fast_sampler::next(milliseconds now) {
    if (setup_next_ < SETUP.size())
        return ask(kind::setup, std::string(SETUP[setup_next_]), now);
    if (resync_ == resync::flush)
        return ask(kind::flush, std::string(FLUSH), now);
    if (resync_ == resync::in_step)
        return ask(kind::in_step, std::string(IN_STEP), now);
    if (cursor_ == 0 && !tries_.empty()) {
        const attempt one = tries_.front();
        tries_.pop_front();
        return ask(one.what, one.asked->command(), now, one.asked, one.what == kind::try_digit);
    }
    return ask_plan(now);
}

// The same request is not sent twice in a row: a reply that lags by one could answer both.
fast_sampler::question fast_sampler::ask_plan(milliseconds now) {
    request* const one = plan_[cursor_];
    if (one == last_of_car_)
        return ask(kind::in_step, std::string(IN_STEP), now);
    const bool digit = may_use_digit() && one->digit == digit_use::proven && !due_plain(*one, now);
    if (!digit)
        one->plain_at = now;
    one->asked_since_plain = digit ? one->asked_since_plain + 1 : 0;
    return ask(kind::plan, one->command(), now, one, digit);
}

fast_sampler::question fast_sampler::ask(kind what, std::string command, milliseconds now,
                                         request* asked, bool digit) {
    constexpr char DIGITS[] = "0123456789ABCDEF";
    if (digit)
        command += DIGITS[asked->known->all_frames()];
    asked_ = what;
    asked_request_ = last_of_car_ = asked;
    asked_digit_ = digit;
    asked_command_ = command;
    notice_.clear();
    deferred_ = false;
    count_ += asked != nullptr;
    sent_at_ = now;
    const bool of_car = what != kind::setup && what != kind::in_step;
    return {std::move(command), of_car ? pause(now) : milliseconds(0)};
}

milliseconds fast_sampler::pause(milliseconds now) const {
    if (is_can() && most_a_second_ > 0)
        return std::max(milliseconds(0), last_request_ + milliseconds(1000 / most_a_second_) - now);
    return std::max(milliseconds(0), last_answer_ + rest() - now);
}

milliseconds fast_sampler::rest() const {
    return bus_ == '1' || bus_ == '2' ? J1850_PAUSE : milliseconds(0);
}

// Units that wake up or go to sleep change the number of frames.
bool fast_sampler::due_plain(const request& one, milliseconds now) const {
    return one.asked_since_plain >= CHECKED_EVERY || now - one.plain_at >= CHECKED_AFTER;
}

fast_sampler::outcome fast_sampler::take(std::string_view reply, milliseconds now) {
    outcome out = std::exchange(unconfirmed_, {});
    answered_at_ = now;
    switch (asked_) {
    case kind::setup:
        take_setup(reply, out);
        break;
    case kind::flush:
        resync_ = resync::in_step;
        break;
    case kind::in_step:
        take_in_step(reply, out);
        break;
    case kind::plan:
        take_plan(reply, out);
        break;
    default:
        take_try(reply, out);
        break;
    }
    if (asked_ != kind::setup && asked_ != kind::in_step) {
        last_request_ = sent_at_;
        last_answer_ = now;
    }
    return out;
}

fast_sampler::outcome fast_sampler::timed_out(milliseconds now) {
    outcome out = take("", now);
    setup_next_ = SETUP.size();
    give_up(out);
    return out;
}

void fast_sampler::take_setup(std::string_view reply, outcome& out) {
    if (++setup_next_ == SETUP.size())
        take_in_step(reply, out);
}

void fast_sampler::take_in_step(std::string_view reply, outcome& out) {
    const char reported = bus_reported_in(reply);
    if (reported != 0 && (reported_bus_ == '0' || reported == reported_bus_)) {
        resync_ = resync::none;
        steps_missed_ = 0;
        if (reported_bus_ == '0') {
            reported_bus_ = reported;
            settle_bus(out);
        }
        return;
    }
    const bool known = resync_ != resync::none && out.samples.empty();
    discard(out);
    if (++steps_missed_ >= MOST_STEPS_MISSED) {
        abandon_cycle(out);
        return;
    }
    if (!known && reported_bus_ != '0')
        count_void(out);
    out.answer_is_missing = true;
    resync_ = resync::flush;
}

void fast_sampler::settle_bus(outcome& out) {
    bus_ = reported_bus_ == '?' ? (can_ ? '6' : '1') : reported_bus_;
    if (bus_ < '1' || bus_ > '9')
        give_up(out);
}

void fast_sampler::abandon_cycle(outcome& out) {
    resync_ = resync::none;
    give_up(out);
    if (cursor_ == 0)
        return;
    for (; cursor_ < plan_.size(); ++cursor_)
        for (const std::string& pid : plan_[cursor_]->pids)
            out.samples.push_back({pid, "~"});
    cursor_ = 0;
    out.ends_cycle = true;
}

void fast_sampler::take_plan(std::string_view reply, outcome& out) {
    request& one = *asked_request_;
    const std::optional<answer> got = read_answer(one, reply, out);
    if (got && (!asked_digit_ || got->form == *one.known)) {
        file(one, *got);
        if (plan_.size() == 1)
            resync_ = resync::in_step; // a late reply would pass for the next one
    } else if (!asked_digit_ && one.pids.size() == 1 && notice_ == "NODATA") {
        unconfirmed_.samples.push_back({one.pids.front(), notice_});
        learn(one, {});
        if (plan_.size() == 1)
            resync_ = resync::flush; // so would a late answer
    } else {
        void_reply(one, out);
    }
    advance(out);
}

// An older answer was taken for this one, or the adapter was still waiting for the car.
bool fast_sampler::is_out_of_step(const strict_reply& read,
                                  const std::vector<sample>& taken) const {
    return read.notice == "STOPPED" ||
           std::ranges::any_of(read.messages, [&](const unit_message& one) {
               return std::ranges::any_of(taken, [&](const sample& each) {
                   const auto source = sources_.find(each.pid);
                   return one.data.starts_with("41" + each.pid) &&
                          (source == sources_.end() || source->second == one.unit);
               });
           });
}

void fast_sampler::discard(outcome& out) {
    for (sample& one : out.samples)
        one.reply = "~";
}

void fast_sampler::file(request& one, const answer& got) {
    for (const parameter_answer& part : got.parts)
        unconfirmed_.samples.push_back({part.pid, part.reply});
    if (asked_digit_)
        return;
    if (one.pids.size() == 1) {
        const parameter_answer& part = got.parts.front();
        sources_.try_emplace(part.pid, got.source);
        lengths_.try_emplace(part.pid, part.reply.size() - HEAD_DIGITS);
        if (stage_ == stage::comparing)
            after_.try_emplace(part.pid, part.reply);
        else
            before_[part.pid] = part.reply;
    }
    learn(one, got.form);
}

void fast_sampler::void_reply(request& one, outcome& out) {
    for (const std::string& pid : one.pids)
        unconfirmed_.samples.push_back({pid, "~"});
    resync_ = resync::flush;
    one.asked_since_plain = CHECKED_EVERY;
    count_void(out);
}

// Two void replies within VOID_WITHIN requests are too many, and so is one deferred answer.
void fast_sampler::count_void(outcome& out) {
    const bool again = voided_ && count_ - last_void_ <= VOID_WITHIN;
    voided_ = !again;
    last_void_ = count_;
    if (deferred_ || (again && is_complaint(notice_)))
        slow_down(out);
    else if (again)
        step_down(out);
}

// Learns the shape of the answer to a plain request.
void fast_sampler::learn(request& one, const shape& form) {
    if (one.known && form != *one.known)
        relearn(one);
    if (one.learnt())
        return;
    one.seen.push_back(form);
    one.plain_times.push_back(exchange());
    if (one.seen.size() < TIMES_ALIKE)
        return;
    if (std::ranges::count(one.seen, form) == static_cast<std::ptrdiff_t>(TIMES_ALIKE))
        one.known = form;
    else
        one.digit = digit_use::never;
}

// Only once; for a request that changes again the digit is never used.
void fast_sampler::relearn(request& one) {
    one.known.reset();
    one.seen.clear();
    one.plain_times.clear();
    one.digit_times.clear();
    one.digit = one.relearned ? digit_use::never : digit_use::untried;
    one.relearned = true;
}

void fast_sampler::advance(outcome& out) {
    if (++cursor_ < plan_.size())
        return;
    cursor_ = 0;
    unconfirmed_.ends_cycle = true;
    if (!ending_)
        cycle_ended(out);
    if (ending_ && resync_ == resync::none)
        resync_ = resync::in_step; // else the last reply would never be filed
}

void fast_sampler::cycle_ended(outcome& out) {
    if (wants_singles_)
        plan_ = singles_;
    wants_singles_ = false;
    switch (stage_) {
    case stage::learning:
        if (std::ranges::all_of(singles_, [](const request* one) { return one->learnt(); }))
            begin_several();
        break;
    case stage::comparing:
        compare();
        break;
    case stage::running:
        queue_digits();
        end_when_plain(out);
        break;
    case stage::trying_several:
        break;
    }
}

// A run that was faster for a while must not end with "nothing gained".
void fast_sampler::end_when_plain(outcome& out) {
    was_faster_ = was_faster_ || level() > 0;
    const bool plain = level() == 0 && tries_.empty() &&
                       std::ranges::all_of(plan_, [](const request* one) { return one->learnt(); });
    if (plain && was_faster_)
        give_up(out);
    ending_ = plain;
}

void fast_sampler::step_down(outcome& out) {
    if (wants_singles_)
        return; // already sent
    if (stage_ != stage::running || level() <= 1) {
        give_up(out);
        return;
    }
    level_cap_ = level() - 1;
    wants_singles_ = level_cap_ == 1;
    out.change = news::stepped_down;
}

void fast_sampler::give_up(outcome& out) {
    if (!ending_)
        out.change = news::given_up;
    ending_ = true;
}

// Discards what was taken before if the reply shows that it was out of step.
std::optional<fast_sampler::answer>
fast_sampler::read_answer(const request& asked, std::string_view reply, outcome& out) {
    const strict_reply read = read_strictly(asked_command_, reply);
    notice_ = read.notice;
    deferred_ = std::ranges::any_of(read.messages,
                                    [](const unit_message& one) { return one.data == "7F0178"; });
    std::optional<answer> got = answer_of(asked, read);
    if (!got && is_out_of_step(read, out.samples))
        discard(out);
    return got;
}

std::optional<fast_sampler::answer> fast_sampler::answer_of(const request& asked,
                                                            const strict_reply& read) const {
    if (read.odd || read.messages.empty())
        return std::nullopt;
    answer got;
    const auto source = sources_.find(asked.pids.front());
    got.source = source == sources_.end() ? read.messages.front().unit : source->second;
    for (const unit_message& one : read.messages) {
        const std::string_view pid = slice(std::string_view(one.data), 2, 2);
        if (!one.data.starts_with("41") || std::ranges::find(asked.pids, pid) == asked.pids.end())
            return std::nullopt;
        got.form.frames.emplace_back(one.unit, one.frames);
        if (one.unit == got.source)
            got.parts = parts_of(asked, one.data);
    }
    for (const parameter_answer& part : got.parts)
        got.form.order.push_back(part.pid);
    return got.parts.empty() ? std::nullopt : std::optional(std::move(got));
}

// Exactly the parameters requested, or none.
std::vector<parameter_answer> fast_sampler::parts_of(const request& asked,
                                                     const std::string& data) const {
    const std::string& first = asked.pids.front();
    if (asked.pids.size() == 1 && !lengths_.contains(first)) {
        // Cars with two banks put both trims into one answer, which is longer then.
        const bool whole = answers_parameter(data, first) && !answer_in(data).empty() &&
                           data.size() <= answer_in(data).size() + 2;
        return whole ? std::vector{parameter_answer{first, data}} : std::vector<parameter_answer>{};
    }
    const auto parts = split_answer(data, lengths_);
    const bool those = parts && parts->size() == asked.pids.size() &&
                       std::ranges::all_of(*parts, [&](const parameter_answer& part) {
                           return std::ranges::find(asked.pids, part.pid) != asked.pids.end();
                       });
    return those ? *parts : std::vector<parameter_answer>{};
}

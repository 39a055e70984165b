#include "car_reader.h"

#include "header_forms.h"
#include "hex_digits.h"
#include "readable.h"
#include "reading.h"
#include "text.h"

#include <algorithm>
#include <set>
#include <utility>

namespace {

using milliseconds = run_loop::milliseconds;

constexpr char HEADERS_ON[] = "ATH1", WAIT_FULL[] = "ATAT0", WAIT_ADAPTIVE[] = "ATAT1",
               FIRST_CONTACT[] = "0100";
constexpr milliseconds ONE_TRY{8000};
constexpr milliseconds BEFORE_THE_NEXT_TRY{1000}; // when a unit is busy or deferred its answer
constexpr int MOST_SILENT = 3;
constexpr int MOST_TRIES = 2; // of a question that no unit deferred

std::string plain_words(std::string_view reply) {
    std::string text;
    const std::string lines = without(reply, std::string_view("\n>\0", 3));
    for (const std::string_view line : split(lines, "\r"))
        if (const std::string_view words = trimmed(line); !words.empty())
            text.append(text.empty() ? "" : " ").append(words);
    return text;
}

} // namespace

car_reader::~car_reader() {
    loop_.cancel(waiting_);
    if (running_)
        door_.give_up();
}

void car_reader::start(conversation transcript) {
    stop(reading_end::cancelled);
    transcript_ = std::move(transcript);
    transcript_.pieces.clear();
    running_ = true;
    silent_ = 0;
    began_ = loop_.now();
    door_.ask(HEADERS_ON, ONE_TRY, [this](const std::optional<std::string>& reply) {
        if (reply)
            set_wait(true, [this] { next(); });
        else
            finish(reading_end::adapter_silent);
    });
}

// `wanted` repeats a question until it has been asked, whatever the outcome.
void car_reader::next() {
    const std::vector<question> all = wanted(transcript_);
    const auto open = std::ranges::find_if(
        all, [this](const question& one) { return !transcript_.find(one.request); });
    if (open == all.end())
        return finish(reading_end::complete);
    if (loop_.now() - began_ >= LONGEST_READING)
        return finish(reading_end::time_up);
    asked_ = *open;
    piece_ = {};
    piece_.request = asked_->request;
    piece_began_ = loop_.now();
    tries_ = 0;
    if (progress)
        progress(asked_->about, transcript_.pieces.size(), all.size());
    if (running_)
        ask();
}

void car_reader::ask() {
    ++tries_;
    const milliseconds left = asked_->bound - (loop_.now() - piece_began_);
    door_.ask(asked_->request,
              std::clamp(left, milliseconds(1000), std::max(ONE_TRY, asked_->bound)),
              [this](std::optional<std::string> reply) { take(std::move(reply)); });
}

void car_reader::take(std::optional<std::string> reply) {
    if (!reply) {
        piece_.timed_out = true;
        const bool adapter_gone = ++silent_ == MOST_SILENT;
        finish_piece();
        return adapter_gone ? finish(reading_end::adapter_silent) : next();
    }
    silent_ = 0;
    if (is_adapter_command(asked_->request))
        take_words(*reply);
    else
        take_data(*reply);
    if (!wait_extended_ && unit_missing()) {
        set_wait(true, [this] { ask(); });
        return;
    }
    if (worth_repeating())
        return repeat();
    const bool first_contact = asked_->request == FIRST_CONTACT;
    finish_piece();
    if (first_contact)
        set_wait(false, [this] { next(); });
    else
        next();
}

// The adapter's adaptive wait cuts off units that are slower than the others; the long one does
// not.
void car_reader::set_wait(bool extended, std::function<void()> go_on) {
    wait_extended_ = true;
    door_.ask(extended ? WAIT_FULL : WAIT_ADAPTIVE, ONE_TRY,
              [this, extended, go_on = std::move(go_on)](const std::optional<std::string>& reply) {
                  wait_extended_ = extended || !reply;
                  go_on();
              });
}

void car_reader::take_words(const std::string& reply) {
    piece_.text = readable(plain_words(reply));
}

// A later try replaces a unit's earlier answers; the others' are kept. Damage is dropped once every
// unit has answered, or one more than before.
void car_reader::take_data(const std::string& reply) {
    const reading read = read_reply(asked_->request, reply);
    unread_pieces damage = std::exchange(piece_.unread, {});
    const std::size_t units_before = piece_.units().size();
    std::set<std::string> answered_now, refused_now;
    for (const ecu_answer& one : read.answers)
        if (one.framed)
            answered_now.insert(unit_address(one.form, one.header));
    for (const unread_piece& one : read.unread)
        if (one.kind == unread_kind::refused)
            refused_now.insert(one.unit);
    std::erase_if(piece_.answers,
                  [&](const unit_reply& before) { return answered_now.contains(before.unit); });
    std::erase_if(piece_.refusals,
                  [&](const unit_reply& before) { return refused_now.contains(before.unit); });
    for (const ecu_answer& one : read.answers)
        if (one.framed)
            keep({unit_address(one.form, one.header), one.data}, piece_.answers);
    for (const unread_piece& one : read.unread)
        if (one.kind == unread_kind::refused)
            keep({one.unit, one.text}, piece_.refusals);
        else if (one.kind != unread_kind::no_answer)
            keep_unread(one.kind, one.text);
    std::erase_if(piece_.refusals, [this](const unit_reply& one) {
        return std::ranges::find(piece_.answers, one.unit, &unit_reply::unit) !=
               piece_.answers.end();
    });
    if (piece_.unread.empty() && piece_.units().size() == units_before && unit_silent())
        piece_.unread = std::move(damage);
    if (read.bus.form != bus_form::unknown)
        piece_.bus = read.bus.form;
}

bool car_reader::unit_silent() const {
    const std::set<std::string> spoke = piece_.units();
    return spoke.empty() || std::ranges::any_of(transcript_.units(), [&](const std::string& unit) {
               return !spoke.contains(unit);
           });
}

// Duplicate messages count once.
void car_reader::keep(const unit_reply& reply, std::vector<unit_reply>& in) {
    if (std::ranges::find(in, reply) != in.end())
        return;
    std::set<std::string> all = piece_.units();
    for (std::string& unit : transcript_.units())
        all.insert(std::move(unit));
    if (in.size() < MOST_ANSWERS && reply.data.size() <= LONGEST_DATA &&
        (all.contains(reply.unit) || all.size() < MOST_UNITS))
        in.push_back(reply);
    else
        keep_unread(unread_kind::not_understood, reply.unit + reply.data);
}

void car_reader::keep_unread(unread_kind kind, std::string_view text) {
    if (piece_.unread.size() < MOST_ANSWERS)
        piece_.unread.push_back({kind, readable(text)});
}

// Only for questions that every unit should answer.
bool car_reader::unit_missing() const {
    constexpr std::string_view FOR_ALL[] = {"0101", "03", "07", "0A", "020200", "0900"};
    if (!piece_.answered() || std::ranges::find(FOR_ALL, piece_.request) == std::end(FOR_ALL))
        return false;
    return unit_silent();
}

// A deferred answer is requested again until the time limit, a damaged or missing one once more.
bool car_reader::worth_repeating() const {
    if (is_adapter_command(asked_->request))
        return false;
    const milliseconds left = asked_->bound - (loop_.now() - piece_began_);
    if (left <= BEFORE_THE_NEXT_TRY)
        return false;
    if (std::ranges::any_of(piece_.refusals, is_deferral))
        return true;
    if (tries_ < MOST_TRIES && !piece_.unread.empty())
        return true;
    const std::string_view request = asked_->request;
    if (request.size() < 4)
        return false;
    const unsigned identifier = hex_value(request.substr(2, 2));
    const bool slow = asked_->bound > ONE_TRY && identifier != 0;
    if (tries_ >= MOST_TRIES && !slow)
        return false;
    const std::set<std::string> spoke = piece_.units();
    return std::ranges::any_of(transcript_.units(), [&](const std::string& unit) {
        return identifier != 0 && !spoke.contains(unit) &&
               transcript_.lists(unit, request.substr(0, 2)).listed.test(identifier);
    });
}

void car_reader::repeat() {
    const bool at_once = std::ranges::none_of(piece_.refusals, is_deferral) && tries_ < MOST_TRIES;
    waiting_ = loop_.after(at_once ? milliseconds(0) : BEFORE_THE_NEXT_TRY, [this] {
        waiting_ = 0;
        ask();
    });
}

void car_reader::finish_piece() {
    piece_.milliseconds = static_cast<int>((loop_.now() - piece_began_).count());
    transcript_.pieces.push_back(std::move(piece_));
    asked_.reset();
}

void car_reader::stop(reading_end how) {
    if (!running_)
        return;
    loop_.cancel(waiting_);
    waiting_ = 0;
    door_.give_up();
    finish(how);
}

void car_reader::finish(reading_end how) {
    running_ = false;
    asked_.reset();
    transcript_.end = how;
    transcript_.milliseconds = static_cast<int>((loop_.now() - began_).count());
    if (done)
        done();
}

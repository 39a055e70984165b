// The adapter's dialogue: characters in, replies out. How it queries the car is in
// car_dialogue.cpp.
#include "virtual_adapter.h"

#include "at_commands.h"

#include <algorithm>

namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr std::size_t LONGEST_COMMAND = 254;
constexpr milliseconds TYPING_TIME{20000};
constexpr milliseconds RESTART_TIME{650};
constexpr microseconds CHARACTER_BITS = std::chrono::seconds(10); // divided by their rate

} // namespace

virtual_adapter::virtual_adapter(car& the_car, adapter_options options)
    : options_(std::move(options)), vehicle_(the_car, options_.seed, options_.speed),
      random_(options_.seed) {
    set_faults(std::move(options_.faults));
}

void virtual_adapter::set_faults(fault_set faults) {
    options_.faults = std::move(faults);
    state_.clone = options_.faults.has(fault_kind::clone);
    if (options_.faults.has(fault_kind::one_byte_chunks))
        output_.send_single_bytes();
}

void virtual_adapter::connection_opened(milliseconds now) {
    vehicle_.seconds(now);
    output_.drop_waiting();
    typed_.clear();
    typing_ends_.reset();
    busy_until_ = now;
    line_in_ = line_out_ = {};
    search_.reset();
    commands_ = 0;
    closing_ = false;
}

void virtual_adapter::receive(std::string_view bytes, milliseconds sent) {
    vehicle_.seconds(sent);
    const auto stall_after = options_.faults.value(fault_kind::stall_after);
    for (const char c : bytes) {
        if (stall_after && commands_ >= *stall_after)
            return;
        const milliseconds now = arrival(sent);
        // The chip ignores NUL, and line feeds, which some terminals send with each return.
        if (c == '\0' || c == '\n')
            continue;
        if (interrupted(now))
            return;
        echo(c, now);
        if (c == '\r')
            finish_command(now);
        else if (c == '\b' && !typed_.empty())
            typed_.pop_back();
        else if (typed_.size() <= LONGEST_COMMAND)
            typed_ += c;
        typing_ends_ = typed_.empty() ? std::nullopt : std::optional(now + TYPING_TIME);
    }
}

// A character received during a request aborts it; the character and what came with it are lost.
bool virtual_adapter::interrupted(milliseconds now) {
    if (now >= busy_until_)
        return false;
    if (restarting_)
        return true;
    if (search_ && now < search_->ends)
        state_ = search_->before;
    search_.reset();
    output_.drop_waiting();
    line_out_ = {};
    say(now, end_of_line() + "STOPPED" + end_of_line() + end_of_line() + ">");
    busy_until_ = now;
    return true;
}

void virtual_adapter::echo(char c, milliseconds now) {
    if (state_.settings.echo || options_.faults.has(fault_kind::echo_stuck))
        say(now, c == '\r' ? end_of_line() : std::string(1, c));
}

void virtual_adapter::finish_command(milliseconds now) {
    std::string text;
    text.swap(typed_);
    ++commands_;
    const auto close_after = options_.faults.value(fault_kind::close_after);
    if (close_after && commands_ > *close_after) {
        closing_ = true;
        output_.drop_waiting();
        return;
    }
    command_line line = read_command(text);
    if (line.type == command_line::kind::empty)
        line = read_command(last_command_);
    else
        last_command_ = text;
    send(answer(text.size() > LONGEST_COMMAND ? command_line{} : line, now), now);
}

void virtual_adapter::send(adapter_reply pieces, milliseconds now) {
    busy_until_ = now + end_of(pieces);
    apply_reply_faults(pieces, options_.faults, ++replies_, end_of_line(), random_);
    for (const reply_piece& piece : pieces)
        say(now + piece.after, piece.text);
    if (const auto held = options_.faults.value(fault_kind::merge_replies))
        output_.hold_until(now + end_of(pieces) + milliseconds(*held));
}

adapter_reply virtual_adapter::answer(const command_line& line, milliseconds now) {
    adapter_reply pieces;
    restarting_ = false;
    switch (line.type) {
    case command_line::kind::empty:
        pieces.push_back({milliseconds(0), ""});
        break;
    case command_line::kind::nonsense:
        add_line(pieces, milliseconds(0), "?");
        break;
    case command_line::kind::at:
        pieces = answer_at(line, now);
        break;
    case command_line::kind::request:
        pieces = answer_request(line, now);
        break;
    }
    // An empty line between answer and prompt.
    pieces.back().text += end_of_line() + ">";
    return pieces;
}

adapter_reply virtual_adapter::answer_at(const command_line& line, milliseconds now) {
    const bool ignition = car_is_there(now);
    const at_surroundings car{ignition ? vehicle_.battery_volts(now) : 12.2, ignition};
    const std::string eol_before = end_of_line();
    const std::optional<std::string> answer = run_at_command(state_, car, line.at_command);
    adapter_reply pieces;
    if (answer && is_initiation(line.at_command)) {
        const adapter_state before = state_;
        connect_to_only(protocol_numbered(state_.protocol), ignition, pieces);
        search_ = search{before, now + end_of(pieces)};
        return pieces;
    }
    if (answer && is_restart(line.at_command)) {
        restarting_ = true;
        pieces.push_back({scaled(RESTART_TIME), eol_before + eol_before});
    }
    add_line(pieces, milliseconds(0), answer.value_or("?"));
    return pieces;
}

std::optional<virtual_adapter::milliseconds> virtual_adapter::next_output() const {
    const std::optional<milliseconds> due = output_.next();
    return due && typing_ends_ ? std::min(*due, *typing_ends_) : due ? due : typing_ends_;
}

std::string virtual_adapter::take_output(milliseconds now) {
    if (typing_ends_ && now >= *typing_ends_) {
        typed_.clear();
        typing_ends_.reset();
        output_.push(now, end_of_line() + "?" + end_of_line() + end_of_line() + ">");
    }
    return output_.take(now);
}

bool virtual_adapter::wants_close(milliseconds) const {
    return closing_;
}

// When a character sent now arrives, through radio and serial line.
milliseconds virtual_adapter::arrival(milliseconds now) {
    const milliseconds arrives = now + options_.round_trip / 2;
    if (options_.baud == 0)
        return arrives;
    line_in_ = std::max<microseconds>(line_in_, arrives) + CHARACTER_BITS / options_.baud;
    return std::chrono::round<milliseconds>(line_in_);
}

void virtual_adapter::say(milliseconds at, const std::string& text) {
    if (options_.baud > 0) {
        line_out_ = std::max<microseconds>(line_out_, at) +
                    CHARACTER_BITS * long(text.size()) / options_.baud;
        at = std::chrono::round<milliseconds>(line_out_);
    }
    output_.push(at + options_.round_trip - options_.round_trip / 2, text);
}

std::string virtual_adapter::end_of_line() const {
    return state_.settings.line_feeds || options_.faults.has(fault_kind::crlf) ? "\r\n" : "\r";
}

milliseconds virtual_adapter::scaled(milliseconds genuine) const {
    if (options_.latency)
        return milliseconds(0);
    return milliseconds(static_cast<milliseconds::rep>(double(genuine.count()) * options_.timing));
}

milliseconds virtual_adapter::end_of(const adapter_reply& pieces) {
    return pieces.empty() ? milliseconds(0) : pieces.back().after;
}

// Adds the lines of `line`, separated by "\r", to leave `later` than the output before them.
void virtual_adapter::add_line(adapter_reply& pieces, milliseconds later,
                               std::string_view line) const {
    std::string text;
    for (const char c : line)
        text += c == '\r' ? end_of_line() : std::string(1, c);
    pieces.push_back({end_of(pieces) + later, text + end_of_line()});
}

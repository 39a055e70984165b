#include "serial_stream_pair.h"

#include "bundle.h"
#include "serial_port_list.h"

#include <algorithm>
#include <utility>

namespace {

// Most adapters answer the first with "?"; some answer only a command they know.
struct question {
    std::string_view text;
    run_loop::milliseconds patience;
};
constexpr question QUESTIONS[] = {{"\x7f\x7f\r", run_loop::milliseconds(500)},
                                  {"AT I\r", run_loop::milliseconds(1000)}};
// Whatever is still on its way arrives within this time.
constexpr run_loop::milliseconds QUIET{100};
constexpr std::size_t PIECE = 1024;
constexpr std::size_t LONGEST_ANSWER = 4096; // endless output is not an answer

// Plain text up to a prompt; at a wrong speed bytes are soon not plain.
bool is_answer(std::string_view text) {
    const auto plain = [](char c) {
        return (c >= ' ' && c <= '~') || c == '\r' || c == '\n' || c == '\0' || c == '\x7f';
    };
    const std::size_t last = text.find_last_not_of(std::string_view(" \r\n\0", 4));
    return last != std::string_view::npos && text[last] == '>' && std::ranges::all_of(text, plain);
}

std::string listed(const std::vector<long>& speeds) {
    std::string text;
    for (const long speed : speeds)
        text += (text.empty() ? "" : ", ") + std::to_string(speed);
    return text;
}

} // namespace

serial_stream_pair::serial_stream_pair(run_loop& loop, const bundle& texts,
                                       std::unique_ptr<serial_line> line, std::string path,
                                       long speed)
    : line_stream_pair(loop), texts_(texts), line_(std::move(line)), path_(std::move(path)),
      speeds_(std::begin(USUAL_SPEEDS), std::end(USUAL_SPEEDS)) {
    if (speed != 0)
        speeds_ = {speed};
}

void serial_stream_pair::open(event_handler handler) {
    listen(std::move(handler));
    const serial_failure failure = line_->open(path_, {[this] { readable(); }, [this] { lost(); }});
    if (failure.problem != serial_problem::none)
        fail(failure);
    else
        try_next_speed();
}

void serial_stream_pair::try_next_speed() {
    state_ = state::asking;
    while (tried_ < speeds_.size())
        if (line_->set_speed(speeds_[tried_++]))
            return ask(0);
    fail({serial_problem::silent, listed(speeds_)});
}

void serial_stream_pair::ask(std::size_t question) {
    answer_.clear();
    answered_ = false;
    line_->write(QUESTIONS[question].text);
    patience_ = loop_.after(QUESTIONS[question].patience, [this, question] {
        if (question + 1 < std::size(QUESTIONS))
            ask(question + 1);
        else
            try_next_speed();
    });
}

void serial_stream_pair::take_answer() {
    while (line_->more_to_read())
        if (const std::string piece = line_->read(PIECE); answer_.size() < LONGEST_ANSWER)
            answer_ += piece;
    answered_ = answered_ || is_answer(answer_);
    if (!answered_ || answer_.size() >= LONGEST_ANSWER)
        return;
    loop_.cancel(patience_);
    patience_ = loop_.after(QUIET, [this] { opened(); });
}

void serial_stream_pair::opened() {
    patience_ = 0;
    state_ = state::open;
    raise_open();
}

void serial_stream_pair::readable() {
    if (state_ == state::asking)
        take_answer();
    else if (state_ == state::open)
        raise_bytes();
}

void serial_stream_pair::write(std::string_view bytes) {
    if (state_ == state::open)
        line_->write(bytes);
}

void serial_stream_pair::lost() {
    if (state_ == state::asking)
        return fail(line_->why_gone());
    if (std::exchange(state_, state::closed) == state::open)
        raise_end();
}

void serial_stream_pair::fail(const serial_failure& why) {
    loop_.cancel(patience_);
    line_->close(); // the next attempt opens it again
    state_ = state::closed;
    raise_error(problem_text(why, texts_, path_));
}

void serial_stream_pair::close() {
    stop_listening();
    loop_.cancel(patience_);
    line_->close();
    state_ = state::closed;
}

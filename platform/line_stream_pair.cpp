#include "line_stream_pair.h"

#include <utility>

std::string line_stream_pair::read(std::size_t most) {
    announced_ = false;
    std::string bytes = take(most);
    if (!announce_rest() && ended_)
        raise(stream_side::input, STREAM_END);
    return bytes;
}

void line_stream_pair::raise_open() {
    raise(stream_side::input, STREAM_OPEN_COMPLETED);
    raise(stream_side::output, STREAM_OPEN_COMPLETED);
    raise(stream_side::output, STREAM_SPACE_AVAILABLE);
}

void line_stream_pair::raise_bytes() {
    if (announced_ || ended_)
        return;
    announced_ = true;
    // Immediately: a turn of the event loop per reply would cost a third of the sampling rate.
    loop_.from_event_loop(event(stream_side::input, STREAM_BYTES_AVAILABLE));
}

// The device does not signal again for unread bytes.
bool line_stream_pair::announce_rest() {
    if (!announced_ && more_to_take()) {
        announced_ = true;
        raise(stream_side::input, STREAM_BYTES_AVAILABLE);
    }
    return announced_;
}

void line_stream_pair::raise_end() {
    if (!std::exchange(ended_, true) && !announce_rest())
        raise(stream_side::input, STREAM_END); // else it follows the last read
}

void line_stream_pair::raise_error(std::string why) {
    error_ = std::move(why);
    raise(stream_side::input, STREAM_ERROR);
}

void line_stream_pair::stop_listening() {
    alive_.reset();
    handler_ = nullptr;
}

void line_stream_pair::raise(stream_side side, int event_code) {
    loop_.after(run_loop::milliseconds(0), event(side, event_code));
}

std::function<void()> line_stream_pair::event(stream_side side, int event_code) {
    return [this, alive = std::weak_ptr<bool>(alive_), side, event_code] {
        if (alive.expired())
            return;
        const event_handler call = handler_; // the pair may be replaced meanwhile
        call(side, event_code);
        if (alive.expired() || event_code != STREAM_BYTES_AVAILABLE)
            return;
        bytes_handled();
        // Bytes that arrived during a dialog of the handler raised no signal, since the first had
        // not returned.
        announce_rest();
    };
}

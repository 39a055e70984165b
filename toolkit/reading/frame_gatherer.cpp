#include "frame_gatherer.h"

#include "answer_sizes.h"
#include "hex_digits.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t FIRST_FRAME = FIRST_FRAME_DIGITS, LATER_FRAME = LONGEST_FRAME_DIGITS;
constexpr unsigned FRAME_NUMBERS = 16;
constexpr std::size_t NUMBER_DIGITS = 2; // "1:"
constexpr std::size_t MOST_STEPS = 5000; // limit of a search, for hostile frames

std::string_view digits_of(std::string_view frame) {
    return frame.substr(NUMBER_DIGITS);
}

} // namespace

bool frame_gatherer::message::accepts(std::string_view frame) const {
    const std::size_t missing = 2 * bytes - data.size();
    const std::string_view digits = digits_of(frame);
    if (!begun || missing == 0 || hex_value(frame.substr(0, 1)) != frames % FRAME_NUMBERS)
        return false;
    if (missing > LATER_FRAME)
        return digits.size() == LATER_FRAME;
    return digits.size() == missing ||
           (digits.size() == LATER_FRAME && is_fill(slice(digits, missing)));
}

void frame_gatherer::message::append(std::string_view frame) {
    data.append(digits_of(frame).substr(0, 2 * bytes - data.size()));
    ++frames;
}

void frame_gatherer::take_length(std::size_t line, std::string_view digits) {
    if (!group_.empty() && frames_awaited() == later_.size() &&
        std::ranges::all_of(group_, &message::begun))
        close_group();
    group_.push_back({line, hex_value(digits)});
}

void frame_gatherer::take_frame(std::string_view frame) {
    const std::string_view digits = digits_of(frame);
    const bool opens = frame.front() == '0' &&
                       std::ranges::any_of(group_, [](const message& one) { return !one.begun; });
    if (!is_hex(digits))
        unread_.push_back({unread_kind::not_understood, std::string(frame)});
    else if (opens)
        take_first(frame, digits);
    else if (digits.size() > LATER_FRAME || digits.size() % 2 != 0 || group_.empty())
        unread_.push_back({unread_kind::frames_unclear, std::string(frame)});
    else
        later_.emplace_back(frame);
}

// The adapter prints a message's length and its first frame together.
void frame_gatherer::take_first(std::string_view frame, std::string_view digits) {
    const auto opened = std::ranges::find(group_.rbegin(), group_.rend(), false, &message::begun);
    std::string first(digits);
    if (first.size() == FIRST_FRAME + 1) // a known fault: an extra digit, the fifth
        first.erase(4, 1);
    const std::size_t all = 2 * opened->bytes;
    const bool fits = first.size() <= FIRST_FRAME && first.size() % 2 == 0 &&
                      (first.size() == FIRST_FRAME || first.size() >= all);
    if (!fits) { // which of its digits are wrong is unknown
        unread_.push_back({unread_kind::frames_unclear, std::string(frame)});
        group_.erase(std::next(opened).base());
        return;
    }
    if (all < first.size() && !is_fill(slice(first, all)))
        unread_.push_back({unread_kind::too_long, std::string(frame)});
    opened->data = first.substr(0, all);
    opened->begun = true;
    opened->frames = 1;
}

std::size_t frame_gatherer::frames_awaited() const {
    std::size_t awaited = 0;
    for (const message& one : group_)
        awaited += (2 * one.bytes - one.data.size() + LATER_FRAME - 1) / LATER_FRAME;
    return awaited;
}

void frame_gatherer::assign(std::size_t frame, messages_of_group& so_far,
                            std::vector<messages_of_group>& ways) {
    if (++steps_ > MOST_STEPS || ways.size() > 1)
        return;
    if (frame == later_.size()) {
        const auto same = [](const message& a, const message& b) { return a.data == b.data; };
        if (std::ranges::all_of(so_far, &message::whole) &&
            std::ranges::none_of(ways, [&](const messages_of_group& other) {
                return std::ranges::equal(other, so_far, same);
            }))
            ways.push_back(so_far);
        return;
    }
    for (message& one : so_far) {
        if (!one.accepts(later_[frame]))
            continue;
        const message before = one;
        one.append(later_[frame]);
        assign(frame + 1, so_far, ways);
        one = before;
    }
}

void frame_gatherer::take_unambiguous() {
    const bool alone = group_.size() == 1;
    for (const std::string& frame : later_)
        if (alone && group_.front().accepts(frame))
            group_.front().append(frame);
        else
            unread_.push_back({unread_kind::frames_unclear, frame});
    for (const message& one : group_)
        if (!one.begun || !one.whole())
            unread_.push_back({unread_kind::broken_off, one.data});
}

void frame_gatherer::close_group() {
    std::vector<messages_of_group> ways;
    if (std::ranges::all_of(group_, &message::begun) && frames_awaited() == later_.size()) {
        steps_ = 0;
        messages_of_group so_far = group_;
        assign(0, so_far, ways);
    }
    if (ways.size() == 1 && steps_ <= MOST_STEPS)
        group_ = std::move(ways.front());
    else
        take_unambiguous();
    std::ranges::move(group_, std::back_inserter(done_));
    group_.clear();
    later_.clear();
}

void frame_gatherer::finish(std::vector<gathered_message>& messages, unread_pieces& unread) {
    close_group();
    for (message& one : done_)
        messages.push_back({one.line, std::move(one.data)});
    std::ranges::move(unread_, std::back_inserter(unread));
}

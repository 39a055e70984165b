// How the virtual adapter finds the car's bus, queries the car and shows the answers.
#include "bus_frames.h"
#include "hex_text.h"
#include "virtual_adapter.h"

#include <algorithm>
#include <array>

namespace {

using std::chrono::milliseconds;

// The order in which a search tries the protocols.
constexpr std::array SEARCH_ORDER = {6, 8, 1, 7, 9, 2, 3, 5, 4};

constexpr std::size_t MOST_DATA = 7; // bytes of a request

} // namespace

bool virtual_adapter::car_is_there(milliseconds now) {
    const auto off_at = options_.faults.value(fault_kind::ignition_off_at);
    return !options_.faults.has(fault_kind::no_bus) &&
           !(off_at && vehicle_.seconds(now) >= double(*off_at));
}

// "BUS INIT: ...OK" of a slow initiation, each dot sent by the chip separately; "BUS INIT: OK" of a
// fast one.
void virtual_adapter::announce_init(const bus_protocol& bus, bool works, adapter_reply& pieces) {
    pieces.push_back({end_of(pieces), "BUS INIT: "});
    const bool slow = bus.kind != bus_kind::kwp_fast;
    for (int dot = 0; slow && dot < 3; ++dot)
        pieces.push_back({end_of(pieces) + scaled(bus.init_time / 3), "."});
    add_line(pieces, slow ? milliseconds(0) : scaled(bus.init_time), works ? "OK" : "ERROR");
}

// Tries one protocol only. What happens if it is wrong depends on the bus.
bool virtual_adapter::connect_to_only(const bus_protocol* wanted, bool present,
                                      adapter_reply& pieces) {
    const bus_protocol& real = vehicle_.protocol();
    const bool right = present && wanted == &real;
    if (wanted && wanted->is_iso()) {
        announce_init(*wanted, right, pieces);
    } else if (!right) {
        // A CAN controller notices when its frame is not acknowledged; the other buses just stay
        // silent.
        const bool wires = present && wanted && wanted->is_can() && real.is_can() &&
                           wanted->kilobits == real.kilobits;
        const bool can = !wanted || wanted->is_can();
        add_line(pieces, longest_wait(), can && !wires ? "CAN ERROR" : "NO DATA");
    }
    state_.bus_open = right;
    if (right) // one tried with AT TP has proved valid
        state_.remember_protocol();
    return right;
}

// Opens the bus if it is not open, and adds the chip's notices; on failure the reply is complete.
bool virtual_adapter::connect(adapter_reply& pieces, milliseconds now) {
    if (state_.bus_open)
        return true;
    const bool present = car_is_there(now);
    if (!state_.automatic)
        return connect_to_only(protocol_numbered(state_.protocol), present, pieces);
    pieces.push_back({milliseconds(0), "SEARCHING..."});
    const bus_protocol& real = vehicle_.protocol();
    milliseconds searched{0};
    // First the one given with AT SP A, or the one found last.
    if (const bus_protocol* first = protocol_numbered(state_.protocol);
        first && (first != &real || !present))
        searched += first->try_time;
    for (const int number : SEARCH_ORDER) {
        const bool first_try = present && state_.protocol == real.number;
        if (first_try || (present && number == real.number))
            break;
        searched += protocol_numbered(number)->try_time;
    }
    add_line(pieces, scaled(searched), "");
    if (!present) {
        add_line(pieces, milliseconds(0), "UNABLE TO CONNECT");
        return false;
    }
    state_.choose_protocol(real.number, true, true);
    state_.bus_open = true;
    if (real.is_iso())
        announce_init(real, true, pieces);
    return true;
}

// Without automatic formatting a CAN request includes its own length byte.
std::optional<byte_string> virtual_adapter::service_data(const byte_string& request) const {
    if (!state_.bus()->is_can() || state_.settings.can_formatting)
        return request;
    if (request.empty() || request[0] == 0 || request[0] >= request.size())
        return std::nullopt;
    return byte_string(request.begin() + 1, request.begin() + 1 + request[0]);
}

// The unit that the header addresses; none when it addresses all.
std::optional<std::uint32_t> virtual_adapter::addressed_unit() const {
    if (!state_.settings.header)
        return std::nullopt;
    const byte_string& header = *state_.settings.header;
    const bus_protocol& bus = *state_.bus();
    if (bus.is_can() && !bus.extended_ids) {
        const auto id = std::uint32_t(header[header.size() - 2] << 8 | header.back());
        return id == 0x7DF ? std::nullopt : std::optional(id + 8);
    }
    const std::uint32_t target = header.size() > 1 ? header[header.size() - 2] : header.back();
    const bool everybody = target == 0x6A || target == 0x33;
    return everybody ? std::nullopt : std::optional(target);
}

bool virtual_adapter::passes_filter(std::uint32_t address) const {
    const adapter_settings& settings = state_.settings;
    const bus_protocol& bus = *state_.bus();
    if (!bus.is_can() || !settings.can_filter)
        return true;
    const std::uint32_t id = bus.extended_ids ? 0x18DAF100 | address : address;
    const std::uint32_t mask = settings.can_mask.value_or(0x1FFFFFFF);
    return (id & mask) == (*settings.can_filter & mask);
}

// Answers "?" or NO DATA to the digit that says how many replies to wait for.
bool virtual_adapter::refuses_digit(int expected, adapter_reply& pieces) const {
    const bool unknown = options_.faults.has(fault_kind::digit_unknown);
    if (expected == 0 || (!unknown && !options_.faults.has(fault_kind::digit_no_data)))
        return false;
    add_line(pieces, milliseconds(0), unknown ? "?" : "NO DATA");
    return true;
}

// The units' answers to a request, under the faults of adapter and car.
std::vector<unit_answer> virtual_adapter::ask_car(byte_string request, milliseconds now) {
    const fault_set& faults = options_.faults;
    if (faults.has(fault_kind::two_bytes) && request.size() > 2)
        request.resize(2);
    if (faults.has(fault_kind::zero_bytes) && request.size() > 2)
        std::fill(request.begin() + 2, request.end(), std::uint8_t(0));
    const bool several = request.size() > 2 && request[0] == 0x01;
    if (several && faults.has(fault_kind::first_pid_only))
        request.resize(2);
    if (several && faults.has(fault_kind::pids_reordered))
        std::reverse(request.begin() + 1, request.end());
    std::vector<unit_answer> answers = vehicle_.answer(request, now, addressed_unit());
    for (unit_answer& answer : answers) {
        if (several && faults.has(fault_kind::several_refused))
            answer.messages = {{0x7F, 0x01, 0x12}};
        if (several && faults.has(fault_kind::wrong_length))
            answer.messages.front().push_back(0);
    }
    damage(answers);
    return answers;
}

// The faults that answer for a PID that was not requested, and that defer an answer.
void virtual_adapter::damage(std::vector<unit_answer>& answers) {
    for (unit_answer& answer : answers) {
        byte_string& message = answer.messages.front();
        if (message.size() <= 2 || message[0] != 0x41 || message[1] % 0x20 == 0 ||
            message[1] == 0x01)
            continue;
        if (every_nth(options_.faults, fault_kind::wrong_pid, ++values_))
            message[1] ^= 0x01;
        if (every_nth(options_.faults, fault_kind::pending, ++deferred_))
            answer.messages.insert(answer.messages.begin(), {0x7F, 0x01, 0x78});
    }
}

milliseconds virtual_adapter::unit_gap() const {
    const auto gap = options_.faults.value(fault_kind::unit_gap);
    return gap ? milliseconds(*gap) : state_.bus()->unit_gap;
}

milliseconds virtual_adapter::longest_wait() const {
    return scaled(milliseconds(state_.settings.timeout * 4));
}

// How long the chip waits for another message: AT ST at most; with AT AT1 somewhat longer than the
// longest gap on this bus so far, with AT AT2 than the gap in its last reply.
milliseconds virtual_adapter::wait_for_more() const {
    const milliseconds longest = longest_wait();
    const milliseconds least = scaled(milliseconds(state_.bus()->is_can() ? 24 : 60));
    switch (state_.settings.adaptive_timing) {
    case 0:
        return longest;
    case 1:
        return std::min(longest, std::max(least, longest_gap_ * 3 / 2));
    default:
        return std::min(longest, std::max(least / 2, last_gap_ * 5 / 4));
    }
}

// The frames that came too late for the last reply and now meet the next request. CAN units send
// theirs when they are ready; those of J1850 send unacknowledged ones again.
std::vector<virtual_adapter::timed_frame> virtual_adapter::late_frames(milliseconds since) {
    std::vector<timed_frame> late;
    late.swap(late_);
    if (state_.bus()->is_can()) {
        std::erase_if(late, [&](const timed_frame& one) {
            return one.at < since || options_.faults.has(fault_kind::late_frames_lost);
        });
        return late;
    }
    if (state_.bus()->is_iso())
        late.clear(); // sent while the chip was not listening
    milliseconds at = since;
    for (timed_frame& one : late)
        one.at = at += scaled(state_.bus()->per_frame);
    return late;
}

// On a K line a request sent too early and a late message destroy each other.
bool virtual_adapter::collides(milliseconds since) const {
    return state_.bus()->is_iso() &&
           std::ranges::any_of(late_, [&](const timed_frame& one) { return one.at >= since; });
}

void virtual_adapter::show_frame(bus_frame& frame, milliseconds later, adapter_reply& pieces) {
    const bus_protocol& bus = *state_.bus();
    frame.damaged = every_nth(options_.faults, fault_kind::data_error, ++messages_);
    state_.last_message = raw_frame(frame, bus);
    if (state_.settings.responses)
        add_line(
            pieces, later,
            shown_frame(frame, bus, state_.settings, options_.faults.has(fault_kind::padding)));
}

// Whether the digit of a request counts this frame.
bool virtual_adapter::counts(const bus_frame& frame) const {
    return frame.ends_message || !options_.faults.has(fault_kind::digit_counts_messages);
}

void virtual_adapter::show_frames(const std::vector<unit_answer>& answers, int expected,
                                  adapter_reply& pieces, milliseconds now) {
    const bus_protocol& bus = *state_.bus();
    const milliseconds start = now + end_of(pieces);
    std::vector<timed_frame> frames = late_frames(start);
    for (const bus_frame& frame : frames_on_bus(answers, bus, vehicle_.fill_byte(),
                                                state_.settings.flow_control, unit_gap()))
        if (passes_filter(frame.address))
            frames.push_back({start + scaled(frame.at), frame});
    std::ranges::stable_sort(frames, {}, &timed_frame::at);
    milliseconds last = start, longest{0};
    std::size_t shown = 0;
    int counted = 0;
    for (timed_frame& one : frames) {
        const milliseconds timer = shown > 0 ? wait_for_more() : longest_wait();
        if ((expected > 0 && counted == expected) || one.at - last > timer)
            break;
        if (shown++ > 0)
            longest = std::max(longest, one.at - last);
        show_frame(one.frame, one.at - now - end_of(pieces), pieces);
        counted += counts(one.frame);
        last = one.at;
    }
    last_gap_ = longest;
    // A CAN controller always receives, so late frames are not lost.
    if (bus.is_can() && shown > 0 && shown < frames.size() && (expected == 0 || counted < expected))
        longest = std::max(longest, frames[shown].at - last);
    longest_gap_ = std::max(longest_gap_, longest);
    late_.assign(frames.begin() + long(shown), frames.end());
    if (shown == 0)
        add_line(pieces, longest_wait(), "NO DATA");
    else if (expected == 0 || counted < expected)
        pieces.push_back({end_of(pieces) + wait_for_more(), ""});
    bus_free_ = std::max(last, start) + scaled(bus.pause);
}

adapter_reply virtual_adapter::answer_request(const command_line& line, milliseconds now) {
    adapter_reply pieces;
    const bool too_long =
        line.request.size() > MOST_DATA + (state_.settings.can_formatting ? 0 : 1);
    if (too_long && !state_.settings.long_messages) {
        add_line(pieces, milliseconds(0), "?");
        return pieces;
    }
    if (refuses_digit(line.expected_replies, pieces))
        return pieces;
    const bool was_open = state_.bus_open;
    const adapter_state before = state_;
    if (!connect(pieces, now))
        return pieces;
    pieces.push_back({end_of(pieces) + options_.latency.value_or(milliseconds(0)), ""});
    if (!was_open) {
        search_ = search{before, now + end_of(pieces)};
        late_.clear();
        longest_gap_ = last_gap_ = {};
    } else if (now + end_of(pieces) < bus_free_) {
        pieces.push_back({bus_free_ - now, ""});
    }
    const bool is_can = state_.bus()->is_can();
    if (is_can && ((was_open && !car_is_there(now)) ||
                   every_nth(options_.faults, fault_kind::can_error, ++requests_))) {
        add_line(pieces, scaled(milliseconds(60)), "CAN ERROR");
        return pieces;
    }
    if (collides(now + end_of(pieces))) {
        late_.clear();
        add_line(pieces, scaled(state_.bus()->first_byte), "FB ERROR");
        return pieces;
    }
    const std::optional<byte_string> data = service_data(line.request);
    std::vector<unit_answer> answers;
    if (data && car_is_there(now))
        answers = ask_car(*data, now);
    const bool digit_counts = !options_.faults.has(fault_kind::digit_ignored);
    show_frames(answers, digit_counts ? line.expected_replies : 0, pieces, now);
    return pieces;
}

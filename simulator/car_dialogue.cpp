// How the virtual adapter finds the car's bus, asks the car and shows what comes back.
#include "bus_frames.h"
#include "hex_text.h"
#include "virtual_adapter.h"

#include <algorithm>
#include <array>

namespace {

using std::chrono::milliseconds;

// The order in which a search goes through the protocols.
constexpr std::array SEARCH_ORDER = {6, 8, 1, 7, 9, 2, 3, 5, 4};

constexpr std::size_t MOST_DATA = 7; // bytes of a request

} // namespace

bool virtual_adapter::car_is_there(milliseconds now) {
    const auto off_at = options_.faults.value(fault_kind::ignition_off_at);
    return !options_.faults.has(fault_kind::no_bus) &&
           !(off_at && vehicle_.seconds(now) >= double(*off_at));
}

// "BUS INIT: ...OK" of a slow initiation, its dots a word of the chip each; "BUS INIT: OK" of a
// fast one.
void virtual_adapter::announce_init(const bus_protocol& bus, bool works, adapter_reply& pieces) {
    pieces.push_back({end_of(pieces), "BUS INIT: "});
    const bool slow = bus.kind != bus_kind::kwp_fast;
    for (int dot = 0; slow && dot < 3; ++dot)
        pieces.push_back({end_of(pieces) + scaled(bus.init_time / 3), "."});
    add_line(pieces, slow ? milliseconds(0) : scaled(bus.init_time), works ? "OK" : "ERROR");
}

// One protocol and no other. What a wrong one leads to depends on the bus.
bool virtual_adapter::connect_to_only(const bus_protocol* wanted, bool present,
                                      adapter_reply& pieces) {
    const bus_protocol& real = vehicle_.protocol();
    const bool right = present && wanted == &real;
    if (wanted && wanted->is_iso()) {
        announce_init(*wanted, right, pieces);
    } else if (!right) {
        // A CAN controller notices when nobody acknowledges its frame; the other buses only stay
        // silent.
        const bool wires = present && wanted && wanted->is_can() && real.is_can() &&
                           wanted->kilobits == real.kilobits;
        const bool can = !wanted || wanted->is_can();
        add_line(pieces, scaled(milliseconds(state_.settings.timeout * 4)),
                 can && !wires ? "CAN ERROR" : "NO DATA");
    }
    state_.bus_open = right;
    if (right) // one only tried with AT TP has proved valid
        state_.remember_protocol();
    return right;
}

// Opens the bus if it is not open. Says what the chip says meanwhile; when it fails, the reply is
// complete.
bool virtual_adapter::connect(adapter_reply& pieces, milliseconds now) {
    if (state_.bus_open)
        return true;
    const bool present = car_is_there(now);
    if (!state_.automatic)
        return connect_to_only(protocol_numbered(state_.protocol), present, pieces);
    pieces.push_back({milliseconds(0), "SEARCHING..."});
    const bus_protocol& real = vehicle_.protocol();
    milliseconds searched{0};
    // The one named with AT SP A comes first, or the one found last.
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

// Without automatic formatting a CAN request brings its own length byte.
std::optional<byte_string> virtual_adapter::service_data(const byte_string& request) const {
    if (!state_.bus()->is_can() || state_.settings.can_formatting)
        return request;
    if (request.empty() || request[0] == 0 || request[0] >= request.size())
        return std::nullopt;
    return byte_string(request.begin() + 1, request.begin() + 1 + request[0]);
}

// The unit that the header is for; none when it is for everybody.
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

// The fault that answers for another PID than was asked for.
void virtual_adapter::damage(std::vector<unit_answer>& answers) {
    for (unit_answer& answer : answers) {
        byte_string& message = answer.messages.front();
        if (message.size() > 2 && message[0] == 0x41 && message[1] % 0x20 != 0 &&
            message[1] != 0x01 && every_nth(options_.faults, fault_kind::wrong_pid, ++values_))
            message[1] ^= 0x01;
    }
}

milliseconds virtual_adapter::wait_for_more(const bus_protocol& bus) const {
    const milliseconds longest(state_.settings.timeout * 4);
    const milliseconds learnt(bus.is_can() ? 24 : 60);
    switch (state_.settings.adaptive_timing) {
    case 0:
        return longest;
    case 1:
        return std::min(longest, learnt);
    default:
        return std::min(longest, learnt / 2);
    }
}

void virtual_adapter::show_frames(const std::vector<unit_answer>& answers, int expected,
                                  adapter_reply& pieces) {
    const bus_protocol& bus = *state_.bus();
    const milliseconds start = end_of(pieces);
    bool heard = false;
    int messages = 0;
    for (bus_frame frame :
         frames_on_bus(answers, bus, vehicle_.fill_byte(), state_.settings.flow_control)) {
        if (!passes_filter(frame.address))
            continue;
        frame.damaged = every_nth(options_.faults, fault_kind::data_error, ++messages_);
        state_.last_message = raw_frame(frame, bus);
        const milliseconds later =
            std::max(milliseconds(0), start + scaled(frame.at) - end_of(pieces));
        if (state_.settings.responses)
            add_line(
                pieces, later,
                shown_frame(frame, bus, state_.settings, options_.faults.has(fault_kind::padding)));
        heard = true;
        messages += frame.ends_message;
        if (expected > 0 && messages == expected)
            return;
    }
    if (!heard)
        add_line(pieces, scaled(milliseconds(state_.settings.timeout * 4)), "NO DATA");
    else
        pieces.push_back({end_of(pieces) + scaled(wait_for_more(bus)), ""});
}

adapter_reply virtual_adapter::answer_request(const command_line& line, milliseconds now) {
    adapter_reply pieces;
    const bool too_long =
        line.request.size() > MOST_DATA + (state_.settings.can_formatting ? 0 : 1);
    if (too_long && !state_.settings.long_messages) {
        add_line(pieces, milliseconds(0), "?");
        return pieces;
    }
    const bool was_open = state_.bus_open;
    const adapter_state before = state_;
    if (!connect(pieces, now))
        return pieces;
    pieces.push_back({end_of(pieces) + options_.latency.value_or(milliseconds(0)), ""});
    if (!was_open)
        search_ = search{before, now + end_of(pieces)};
    const bool is_can = state_.bus()->is_can();
    if (is_can && ((was_open && !car_is_there(now)) ||
                   every_nth(options_.faults, fault_kind::can_error, ++requests_))) {
        add_line(pieces, scaled(milliseconds(60)), "CAN ERROR");
        return pieces;
    }
    const std::optional<byte_string> data = service_data(line.request);
    std::vector<unit_answer> answers;
    if (data && car_is_there(now))
        answers = vehicle_.answer(*data, now, addressed_unit());
    damage(answers);
    show_frames(answers, line.expected_replies, pieces);
    return pieces;
}

#include "vehicle.h"

#include "hex_text.h"
#include "vehicle_info.h"

#include <algorithm>

namespace {

// Negative responses (ISO 14229-1).
constexpr std::uint8_t SERVICE_NOT_SUPPORTED = 0x11;
constexpr std::uint8_t CONDITIONS_NOT_CORRECT = 0x22;
constexpr std::uint8_t ANSWER_TO_COME = 0x78;
constexpr std::size_t CODES_PER_MESSAGE = 3; // before CAN

const std::vector<std::string>& codes_for(const control_unit& unit, int service) {
    return service == 0x03 ? unit.stored : service == 0x07 ? unit.pending : unit.permanent;
}

bool known_service(int service) {
    return (service >= 1 && service <= 4) || service == 6 || service == 7 || service == 9 ||
           service == 0x0A;
}

int hex_value(char digit) {
    return digit <= '9' ? digit - '0' : digit - 'A' + 10;
}

} // namespace

byte_string code_bytes(const std::string& code) {
    const int letter = int(std::string_view("PCBU").find(code[0]));
    return {std::uint8_t(letter << 6 | hex_value(code[1]) << 4 | hex_value(code[2])),
            std::uint8_t(hex_value(code[3]) << 4 | hex_value(code[4]))};
}

byte_string support_mask(int base, const std::vector<int>& supported) {
    byte_string mask(4, 0);
    for (const int pid : supported) {
        if (pid > base && pid <= base + 0x20)
            mask[std::size_t((pid - base - 1) / 8)] |= std::uint8_t(0x80 >> (pid - base - 1) % 8);
        else if (pid > base + 0x20)
            mask[3] |= 1; // the next mask exists
    }
    return mask;
}

vehicle::vehicle(car& the_car, std::uint64_t seed, double speed)
    : car_(the_car), drive_(the_car.engine, seed), speed_(speed) {}

const bus_protocol& vehicle::protocol() const {
    return *protocol_numbered(car_.protocol);
}

double vehicle::seconds(std::chrono::milliseconds now) {
    if (!start_)
        start_ = now;
    return double((now - *start_).count()) / 1000 * speed_;
}

double vehicle::battery_volts(std::chrono::milliseconds now) {
    return drive_.at(seconds(now)).battery_volts;
}

std::vector<unit_answer> vehicle::answer(const byte_string& request, std::chrono::milliseconds now,
                                         std::optional<std::uint32_t> only) {
    second_ = double(now.count()) / 1000;
    moment_.engine = drive_.at(seconds(now));
    // The car has driven some distance with its fault.
    constexpr double KM_BEFORE = 312;
    moment_.km_since_clear = cleared_at_km_ > 0 ? moment_.engine.distance_km - cleared_at_km_
                                                : moment_.engine.distance_km + KM_BEFORE;
    constexpr double KM_WHEN_SOLD = 87'400;
    moment_.odometer_km = moment_.engine.distance_km + KM_WHEN_SOLD;
    moment_.warm_ups = cleared_at_km_ > 0 ? 0 : 21;
    std::vector<unit_answer> answers;
    for (control_unit& unit : car_.units) {
        if (only && *only != unit.address)
            continue;
        messages reply = answer_of(unit, request);
        // A unit ignores a service that it does not know, unless the request was addressed to it.
        if (only && can() && !request.empty() && !known_service(request[0]))
            reply.push_back({0x7F, request[0], SERVICE_NOT_SUPPORTED});
        if (!reply.empty())
            answers.push_back(
                {unit.address, std::move(reply), std::chrono::milliseconds(unit.delay_ms)});
    }
    std::stable_sort(
        answers.begin(), answers.end(),
        [](const unit_answer& a, const unit_answer& b) { return a.address < b.address; });
    return answers;
}

// How long an answer is deferred counts from its first request.
vehicle::messages vehicle::answer_of(control_unit& unit, const byte_string& request) {
    const std::string digits = hex_text(request, false);
    if (const auto deferred = unit.later.find(digits); deferred != unit.later.end()) {
        const double first =
            asked_first_.try_emplace({unit.address, digits}, second_).first->second;
        if (second_ < first + deferred->second)
            return {{0x7F, request[0], ANSWER_TO_COME}};
    }
    if (const auto own = unit.answers.find(digits); own != unit.answers.end())
        return own->second;
    return answer_now(unit, request);
}

vehicle::messages vehicle::answer_now(control_unit& unit, const byte_string& request) {
    if (request.empty() || std::find(unit.silent_services.begin(), unit.silent_services.end(),
                                     request[0]) != unit.silent_services.end())
        return {};
    switch (request[0]) {
    case 0x01:
        return current_data(unit, request);
    case 0x02:
        return freeze_frame_data(unit, request);
    case 0x03:
    case 0x07:
        return codes(unit, request);
    case 0x0A:
        return can() ? codes(unit, request) : messages{};
    case 0x04:
        return clear(unit, request);
    case 0x06:
        return monitor_tests(unit, request, can());
    case 0x09:
        return vehicle_info(car_, unit, request, can());
    default:
        return {};
    }
}

std::optional<byte_string> vehicle::value(const control_unit& unit, int pid) const {
    if (pid % 0x20 == 0) {
        std::vector<int> supported = unit.pids;
        supported.push_back(0x01);
        const bool known = pid == 0 || std::any_of(supported.begin(), supported.end(),
                                                   [pid](int one) { return one > pid; });
        return known ? std::optional(support_mask(pid, supported)) : std::nullopt;
    }
    if (pid == 0x01) {
        const auto count = std::uint8_t(std::min<std::size_t>(unit.stored.size(), 127));
        return byte_string{std::uint8_t((unit.lamp ? 0x80 : 0) | count), unit.readiness.continuous,
                           unit.readiness.available, unit.readiness.not_complete};
    }
    if (std::find(unit.pids.begin(), unit.pids.end(), pid) == unit.pids.end())
        return std::nullopt;
    if (const auto fixed = unit.fixed.find(pid); fixed != unit.fixed.end())
        return fixed->second;
    return live_value(pid, moment_);
}

// CAN takes up to six PIDs in one request; older buses one.
vehicle::messages vehicle::current_data(control_unit& unit, const byte_string& request) {
    if (request.size() < 2 || request.size() > (can() ? 7u : 2u))
        return {};
    moment_.lamp_km = unit.lamp ? moment_.km_since_clear : 0;
    byte_string answer = {0x41};
    for (std::size_t i = 1; i < request.size(); ++i) {
        const std::optional<byte_string> bytes = value(unit, request[i]);
        if (!bytes)
            continue;
        answer.push_back(request[i]);
        answer.insert(answer.end(), bytes->begin(), bytes->end());
    }
    return answer.size() > 1 ? messages{answer} : messages{};
}

vehicle::messages vehicle::freeze_frame_data(const control_unit& unit,
                                             const byte_string& request) const {
    if (request.size() != 3 || request[2] != 0)
        return {};
    const int pid = request[1];
    byte_string answer = {0x42, request[1], 0};
    byte_string bytes;
    if (pid == 0x02) {
        bytes = unit.frozen ? code_bytes(unit.frozen->code) : byte_string{0, 0};
    } else if (!unit.frozen) {
        return {};
    } else if (pid % 0x20 == 0) {
        std::vector<int> supported = {0x02};
        for (const auto& [known, value] : unit.frozen->values)
            supported.push_back(known);
        bytes = support_mask(pid, supported);
    } else if (const auto found = unit.frozen->values.find(pid);
               found != unit.frozen->values.end()) {
        bytes = found->second;
    } else {
        return {};
    }
    answer.insert(answer.end(), bytes.begin(), bytes.end());
    return {answer};
}

vehicle::messages vehicle::codes(const control_unit& unit, const byte_string& request) const {
    if (request.size() != 1)
        return {};
    const std::vector<std::string>& listed = codes_for(unit, request[0]);
    const auto answer_byte = std::uint8_t(request[0] | 0x40);
    byte_string bytes;
    for (const std::string& code : listed) {
        const byte_string two = code_bytes(code);
        bytes.insert(bytes.end(), two.begin(), two.end());
    }
    if (can()) {
        byte_string answer = {answer_byte, std::uint8_t(listed.size())};
        answer.insert(answer.end(), bytes.begin(), bytes.end());
        return {answer};
    }
    messages lines;
    const std::size_t most = CODES_PER_MESSAGE * 2;
    bytes.resize(std::max<std::size_t>(1, (bytes.size() + most - 1) / most) * most, 0);
    for (std::size_t at = 0; at < bytes.size(); at += most) {
        byte_string line = {answer_byte};
        line.insert(line.end(), bytes.begin() + long(at), bytes.begin() + long(at + most));
        lines.push_back(line);
    }
    return lines;
}

// Permanent codes stay; the monitors that run once a trip start again.
vehicle::messages vehicle::clear(control_unit& unit, const byte_string& request) {
    if (request.size() != 1)
        return {};
    if (unit.clears_with_engine_off_only && moment_.engine.rpm > 0)
        return {{0x7F, 0x04, CONDITIONS_NOT_CORRECT}};
    unit.answers.erase("0101"); // its status is derived again
    unit.stored.clear();
    unit.pending.clear();
    unit.frozen.reset();
    unit.lamp = false;
    unit.readiness.not_complete = unit.readiness.available;
    cleared_at_km_ = std::max(moment_.engine.distance_km, 1e-9);
    return {{0x44}};
}

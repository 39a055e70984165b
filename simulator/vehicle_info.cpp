#include "vehicle_info.h"

#include "hex_text.h"
#include "vehicle.h"

#include <algorithm>

namespace {

using messages = std::vector<byte_string>;

constexpr std::size_t VIN_LENGTH = 17;
constexpr std::size_t CALIBRATION_LENGTH = 16;
constexpr std::size_t NAME_LENGTH = 20, SHORT_NAME_LENGTH = 4;

enum info_type {
    vin_count = 1,
    vin,
    calibration_count,
    calibration,
    number_count,
    number,
    counter_count,
    counter,
    name_count,
    name,
    diesel_counter
};
constexpr std::size_t BYTES_OF_A_MESSAGE = 4;

void append(byte_string& to, const std::string& text, std::size_t length) {
    for (std::size_t i = 0; i < length; ++i)
        to.push_back(i < text.size() ? std::uint8_t(text[i]) : 0);
}

// The bytes of one information type without its header; the VIN is padded in front to fill the
// older buses' messages of four.
byte_string payload(const car& the_car, const control_unit& unit, int type, bool can) {
    byte_string bytes;
    if (type == vin) {
        if (!can)
            bytes.assign(3, 0);
        append(bytes, the_car.vin, VIN_LENGTH);
    } else if (type == calibration) {
        for (const std::string& id : unit.calibrations)
            append(bytes, id, CALIBRATION_LENGTH);
    } else if (type == number) {
        for (const std::string& one : unit.verification_numbers) {
            const byte_string four = hex_bytes(one);
            bytes.insert(bytes.end(), four.begin(), four.end());
        }
    } else if (type == counter || type == diesel_counter) {
        for (const int count : unit.counters)
            bytes.insert(bytes.end(), {std::uint8_t(count >> 8), std::uint8_t(count & 0xFF)});
        if (!can)
            bytes.resize((bytes.size() + 3) / BYTES_OF_A_MESSAGE * BYTES_OF_A_MESSAGE);
    } else if (type == name && !unit.short_name.empty()) {
        append(bytes, unit.short_name, SHORT_NAME_LENGTH);
        append(bytes, "-" + unit.name, NAME_LENGTH - SHORT_NAME_LENGTH);
    } else if (type == name) {
        append(bytes, unit.name, NAME_LENGTH);
    }
    return bytes;
}

std::vector<int> supported_types(const car& the_car, const control_unit& unit, bool can) {
    std::vector<int> types;
    const auto add = [&types, can](int count_type, int type) {
        if (!can)
            types.push_back(count_type);
        types.push_back(type);
    };
    if (!the_car.vin.empty() && &unit == &the_car.units.front())
        add(vin_count, vin);
    if (!unit.calibrations.empty())
        add(calibration_count, calibration);
    if (!unit.verification_numbers.empty())
        add(number_count, number);
    if (!unit.counters.empty() && the_car.engine.fuel != fuel_kind::diesel)
        add(counter_count, counter);
    else if (!unit.counters.empty())
        types.push_back(diesel_counter);
    if (can || !unit.short_name.empty())
        add(name_count, name);
    return types;
}

// The number of items that a CAN answer declares.
std::uint8_t item_count(const control_unit& unit, int type) {
    switch (type) {
    case calibration:
        return std::uint8_t(unit.calibrations.size());
    case number:
        return std::uint8_t(unit.verification_numbers.size());
    case counter:
    case diesel_counter:
        return std::uint8_t(unit.counters.size());
    default:
        return 1;
    }
}

} // namespace

messages vehicle_info(const car& the_car, const control_unit& unit, const byte_string& request,
                      bool can) {
    if (request.size() != 2)
        return {};
    const int type = request[1];
    const std::vector<int> types = supported_types(the_car, unit, can);
    byte_string head = {0x49, request[1]};
    if (type == 0) {
        if (!can)
            head.push_back(1);
        const byte_string mask = support_mask(0, types);
        head.insert(head.end(), mask.begin(), mask.end());
        return {head};
    }
    if (std::find(types.begin(), types.end(), type) == types.end())
        return {};
    if (type % 2 != 0 && type < diesel_counter) {
        head.push_back(
            std::uint8_t(payload(the_car, unit, type + 1, can).size() / BYTES_OF_A_MESSAGE));
        return {head};
    }
    const byte_string bytes = payload(the_car, unit, type, can);
    if (can) {
        head.push_back(item_count(unit, type));
        head.insert(head.end(), bytes.begin(), bytes.end());
        return {head};
    }
    messages parts;
    for (std::size_t at = 0; at < bytes.size(); at += 4) {
        byte_string part = {0x49, request[1], std::uint8_t(at / 4 + 1)};
        part.insert(part.end(), bytes.begin() + long(at), bytes.begin() + long(at + 4));
        parts.push_back(part);
    }
    return parts;
}

messages monitor_tests(const control_unit& unit, const byte_string& request, bool can) {
    if (!can || request.size() != 2 || unit.tests.empty())
        return {};
    const int monitor = request[1];
    byte_string answer = {0x46};
    if (monitor % 0x20 == 0) {
        std::vector<int> monitors;
        for (const test_result& test : unit.tests)
            monitors.push_back(test.monitor);
        const byte_string mask = support_mask(monitor, monitors);
        if (monitor > 0 &&
            std::all_of(mask.begin(), mask.end(), [](std::uint8_t byte) { return byte == 0; }))
            return {};
        answer.push_back(request[1]);
        answer.insert(answer.end(), mask.begin(), mask.end());
        return {answer};
    }
    for (const test_result& test : unit.tests) {
        if (test.monitor != monitor)
            continue;
        const auto high = [](std::uint16_t word) { return std::uint8_t(word >> 8); };
        const auto low = [](std::uint16_t word) { return std::uint8_t(word & 0xFF); };
        answer.insert(answer.end(),
                      {test.monitor, test.test, test.unit, high(test.value), low(test.value),
                       high(test.lowest), low(test.lowest), high(test.highest), low(test.highest)});
    }
    return answer.size() > 1 ? messages{answer} : messages{};
}

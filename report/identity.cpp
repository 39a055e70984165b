// What a unit reports about itself: identification number, name, calibrations, counters (service 09
// of SAE J1979).
#include "findings.h"
#include "hex_digits.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <span>

namespace {

constexpr std::size_t VIN_LENGTH = 17;
constexpr std::size_t CALIBRATION_DIGITS = 32, NUMBER_DIGITS = 8, COUNTER_DIGITS = 4;
constexpr std::size_t MESSAGE_BYTES = 4; // before CAN
constexpr std::size_t SHORT_NAME = 4;

// Up to the first zero; unprintable characters become dots.
std::string text_of(std::string_view digits) {
    std::string text;
    for (std::size_t at = 0; at + 2 <= digits.size(); at += 2) {
        const unsigned byte = hex_value(digits.substr(at, 2));
        if (byte == 0)
            break;
        text += byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '.';
    }
    return std::string(trimmed(std::string_view(text)));
}

// Without the leading zeros that pad it on the older buses.
std::string_view behind_zeros(std::string_view digits) {
    while (digits.starts_with("00"))
        digits.remove_prefix(2);
    return digits;
}

bool may_stand_in_vin(char c) {
    return std::isdigit(static_cast<unsigned char>(c)) ||
           (c >= 'A' && c <= 'Z' && c != 'I' && c != 'O' && c != 'Q');
}

// A service 09 answer with several items; on CAN it starts with their number.
struct items {
    std::string bytes;
    std::size_t announced = 0;
    bool whole = true;
};

class identity_reader {
  public:
    identity_reader(unit_report& unit, const conversation& transcript)
        : unit_(unit), transcript_(transcript) {}

    void read() {
        read_vin();
        read_name();
        read_calibrations();
        read_counters();
    }

  private:
    bool can(std::string_view request) const {
        const asked_piece* piece = transcript_.find(request);
        return piece && piece->bus != bus_form::older;
    }

    // `counted_by`: the request that, on the older buses, returns the number of messages.
    items items_of(part one, std::string_view request, std::string_view counted_by = {}) {
        finding& found = unit_.of(one) = finding_of(transcript_, request, unit_.address);
        items sent;
        if (!found.reported())
            return sent;
        sent.bytes = identity_bytes(transcript_, request, unit_.address, sent.whole);
        if (can(request)) {
            sent.announced = hex_value(slice(std::string_view(sent.bytes), 0, 2));
            sent.bytes = slice(std::string_view(sent.bytes), 2);
        } else if (const auto counted = answers_of(transcript_, counted_by, unit_.address);
                   !counted_by.empty() && !counted.empty()) {
            const unsigned messages = hex_value(slice(std::string_view(counted.front()), 4, 2));
            sent.whole = sent.whole && sent.bytes.size() >= 2 * MESSAGE_BYTES * messages;
        }
        return sent;
    }

    void mark_incomplete(part one, bool whole) {
        finding& found = unit_.of(one);
        if (!found.reported() || whole)
            return;
        found.result = outcome::unread;
        found.why = WHY_INCOMPLETE;
    }

    void read_vin() {
        items sent = items_of(part::vin, "0902");
        const std::string_view digits = behind_zeros(sent.bytes);
        unit_.vin = text_of(digits);
        const bool hidden = transcript_.vin_hidden;
        unit_.vin_is_standard = sent.whole && digits.size() == 2 * VIN_LENGTH &&
                                unit_.vin.size() == VIN_LENGTH &&
                                std::ranges::all_of(unit_.vin, [hidden](char c) {
                                    return may_stand_in_vin(c) || (hidden && c == '*');
                                });
        const bool short_of_it = !can("0902") && sent.bytes.size() < 2 * 5 * MESSAGE_BYTES;
        mark_incomplete(part::vin, sent.whole && !short_of_it && !unit_.vin.empty());
        if (!unit_.of(part::vin).reported())
            unit_.vin.clear();
    }

    // "ECM", fill, "-", "EngineControl", fill; older forms are plain text.
    void read_name() {
        const items sent = items_of(part::unit_name, "090A");
        mark_incomplete(part::unit_name, sent.whole);
        if (!unit_.of(part::unit_name).reported())
            return;
        const std::string_view digits = sent.bytes;
        const bool in_two = slice(digits, 2 * SHORT_NAME, 2) == "2D";
        std::string name = in_two ? text_of(digits.substr(0, 2 * SHORT_NAME)) + " - " +
                                        text_of(slice(digits, 2 * (SHORT_NAME + 1)))
                                  : text_of(digits);
        if (!name.empty())
            unit_.name = std::move(name);
    }

    void read_calibrations() {
        const items ids = items_of(part::calibrations, "0904", "0903");
        const items numbers = items_of(part::verification_numbers, "0906", "0905");
        const auto count = [](const items& sent, std::size_t digits) {
            return std::max(sent.announced, (sent.bytes.size() + digits - 1) / digits);
        };
        const std::size_t id_count = count(ids, CALIBRATION_DIGITS);
        const std::size_t number_count = count(numbers, NUMBER_DIGITS);
        for (std::size_t i = 0; i < std::max(id_count, number_count); ++i)
            unit_.calibrations.push_back(
                {text_of(slice(std::string_view(ids.bytes), i * CALIBRATION_DIGITS,
                               CALIBRATION_DIGITS)),
                 std::string(
                     slice(std::string_view(numbers.bytes), i * NUMBER_DIGITS, NUMBER_DIGITS))});
        mark_incomplete(part::calibrations,
                        ids.whole && ids.bytes.size() == id_count * CALIBRATION_DIGITS);
        mark_incomplete(part::verification_numbers,
                        numbers.whole && numbers.bytes.size() == number_count * NUMBER_DIGITS);
    }

    void read_counters();
    void read_counters(std::string_view request, std::string_view counted_by,
                       std::span<const std::string_view> names);

    unit_report& unit_;
    const conversation& transcript_;
};

// After the first two, pairs: times completed, times the conditions were met.
constexpr std::string_view SPARK[] = {"Catalyst, bank 1",
                                      "Catalyst, bank 2",
                                      "O2 sensor, bank 1",
                                      "O2 sensor, bank 2",
                                      "EGR/VVT system",
                                      "Secondary air system",
                                      "Evaporative system",
                                      "Secondary O2 sensor, bank 1",
                                      "Secondary O2 sensor, bank 2"};
constexpr std::string_view COMPRESSION[] = {
    "NMHC catalyst",      "NOx catalyst",   "NOx adsorber",   "Particulate filter",
    "Exhaust gas sensor", "EGR/VVT system", "Boost pressure", "Fuel system"};

// Normally a unit has one or the other.
void identity_reader::read_counters() {
    read_counters("0908", "0907", SPARK);
    const finding petrol = unit_.of(part::counters);
    read_counters("090B", {}, COMPRESSION);
    const finding diesel = unit_.of(part::counters);
    const bool listed = diesel.why != WHY_NOT_LISTED;
    if (petrol.reported() && !diesel.reported() && listed)
        unit_.gaps.push_back(diesel);
    if (petrol.reported() || !listed)
        unit_.of(part::counters) = petrol;
}

void identity_reader::read_counters(std::string_view request, std::string_view counted_by,
                                    std::span<const std::string_view> names) {
    const items sent = items_of(part::counters, request, counted_by);
    if (!unit_.of(part::counters).reported())
        return;
    const auto number = [&](std::size_t place) {
        return hex_value(
            slice(std::string_view(sent.bytes), place * COUNTER_DIGITS, COUNTER_DIGITS));
    };
    const std::size_t count = sent.bytes.size() / COUNTER_DIGITS;
    mark_incomplete(part::counters, sent.whole && count >= sent.announced && count >= 2);
    if (count < 2)
        return;
    unit_.counters.push_back({"OBD monitoring conditions met", number(0), std::nullopt});
    unit_.counters.push_back({"Ignition cycles", number(1), std::nullopt});
    for (std::size_t at = 2; at + 1 < count; at += 2) {
        const std::size_t pair = at / 2 - 1;
        unit_.counters.push_back(
            {pair < names.size() ? std::string(names[pair]) : "Monitor " + std::to_string(pair + 1),
             number(at), number(at + 1)});
    }
}

} // namespace

void fill_identity(unit_report& unit, const conversation& transcript) {
    identity_reader(unit, transcript).read();
}

// Lamp, readiness and trouble codes of one unit (SAE J1979, J2012).
#include "findings.h"
#include "hex_digits.h"
#include "mac_toolies.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr std::size_t STATUS_DIGITS = 12; // "4101AABBCCDD"
constexpr unsigned LAMP_BIT = 0x80, COUNT_BITS = 0x7F, COMPRESSION_BIT = 0x08;
constexpr std::size_t CODE_DIGITS = 4;

struct monitor_row {
    std::string_view spark, compression; // empty: reserved
};
constexpr monitor_row CONTINUOUS[] = {
    {"Misfire", "Misfire"},
    {"Fuel system", "Fuel system"},
    {"Comprehensive components", "Comprehensive components"},
};
constexpr monitor_row OTHERS[] = {
    {"Catalyst", "NMHC catalyst"},
    {"Heated catalyst", "NOx/SCR aftertreatment"},
    {"Evaporative system", ""},
    {"Secondary air system", "Boost pressure"},
    {"A/C refrigerant / petrol particulate filter", ""},
    {"O2 sensor", "Exhaust gas sensor"},
    {"O2 sensor heater", "Particulate filter"},
    {"EGR/VVT system", "EGR/VVT system"},
};

struct status_bytes {
    unsigned a = 0, b = 0, c = 0, d = 0;
};
std::optional<status_bytes> status_in(const std::vector<std::string>& answers) {
    for (const std::string& one : answers)
        if (const std::string_view data = one; data.size() >= STATUS_DIGITS)
            return status_bytes{hex_value(slice(data, 4, 2)), hex_value(slice(data, 6, 2)),
                                hex_value(slice(data, 8, 2)), hex_value(slice(data, 10, 2))};
    return std::nullopt;
}

// Supported if set in `enabled`; complete if clear in `open`.
struct monitor_bits {
    bool enabled, complete;
};
monitor_bits bits_of(const status_bytes& status, bool continuous, unsigned bit) {
    const unsigned enabled = continuous ? status.b : status.c;
    const unsigned open = continuous ? status.b >> 4 : status.d;
    return {(enabled >> bit & 1) != 0, (open >> bit & 1) == 0};
}

std::string name_of(const monitor_row& row, bool compression) {
    return std::string(compression ? row.compression : row.spark);
}

void add_monitors(unit_report& unit, std::span<const monitor_row> rows, bool continuous,
                  const status_bytes& status, const std::optional<status_bytes>& drive) {
    for (unsigned bit = 0; bit < rows.size(); ++bit) {
        reported_monitor one;
        const monitor_bits since_cleared = bits_of(status, continuous, bit);
        one.name = name_of(rows[bit], unit.compression);
        one.continuous = continuous;
        one.supported = since_cleared.enabled;
        one.complete = since_cleared.complete;
        if (drive)
            if (const monitor_bits now = bits_of(*drive, continuous, bit); now.enabled)
                one.complete_this_drive = now.complete;
        if (one.name.empty() && one.supported)
            one.name = "Reserved (C" + std::to_string(bit) + ")";
        if (!one.name.empty())
            unit.monitors.push_back(std::move(one));
    }
}

reported_code& code_named(unit_report& unit, const std::string& code) {
    const auto found = std::ranges::find(unit.codes, code, &reported_code::code);
    if (found != unit.codes.end())
        return *found;
    unit.codes.push_back({code, {}, {}, false});
    return unit.codes.back();
}

// On CAN the number of codes comes first; the older buses pad a line of three codes with zeros.
void take_codes(unit_report& unit, std::string_view answer, std::size_t kind, bool older) {
    for (std::size_t at = older ? 2 : 4; at + CODE_DIGITS <= answer.size(); at += CODE_DIGITS) {
        const std::string_view digits = answer.substr(at, CODE_DIGITS);
        if (older && digits == "0000")
            continue;
        code_named(unit, mac_toolies::pull_DTC_code(digits)).kinds[kind] = true;
        unit.stored_received += CODE_KINDS[kind] == part::stored;
    }
}

} // namespace

void fill_status(unit_report& unit, const conversation& transcript) {
    finding& status = unit.of(part::status) = finding_of(transcript, "0101", unit.address);
    finding& drive = unit.of(part::this_drive) = finding_of(transcript, "0141", unit.address);
    const auto since_cleared = status_in(answers_of(transcript, "0101", unit.address));
    const auto this_drive = status_in(answers_of(transcript, "0141", unit.address));
    for (finding* one : {&status, &drive})
        if (one->reported() && !(one == &status ? since_cleared : this_drive))
            one->result = outcome::unread;
    if (!since_cleared)
        return;
    unit.lamp_on = (since_cleared->a & LAMP_BIT) != 0;
    unit.announced_codes = static_cast<int>(since_cleared->a & COUNT_BITS);
    unit.compression = (since_cleared->b & COMPRESSION_BIT) != 0;
    add_monitors(unit, CONTINUOUS, true, *since_cleared, this_drive);
    add_monitors(unit, OTHERS, false, *since_cleared, this_drive);
}

void fill_codes(unit_report& unit, const conversation& transcript, const mac_toolies& toolies) {
    constexpr std::string_view SERVICES[] = {"03", "07", "0A"};
    for (std::size_t kind = 0; kind < CODE_KINDS.size(); ++kind) {
        unit.of(CODE_KINDS[kind]) = finding_of(transcript, SERVICES[kind], unit.address);
        const asked_piece* piece = transcript.find(SERVICES[kind]);
        for (const std::string& answer : answers_of(transcript, SERVICES[kind], unit.address))
            take_codes(unit, answer, kind, piece->bus == bus_form::older);
    }
    finding& frame = unit.of(part::frame) = finding_of(transcript, "020200", unit.address);
    for (const std::string& answer : answers_of(transcript, "020200", unit.address)) {
        const std::string_view digits = slice(std::string_view(answer), 6, CODE_DIGITS);
        if (digits.size() < CODE_DIGITS)
            frame.result = outcome::unread;
        else if (digits != "0000")
            unit.frame_code = mac_toolies::pull_DTC_code(digits);
    }
    if (unit.codes.empty())
        return;
    const text_dictionary meanings =
        toolies.get_dictionary_from_resource("P0_Codes", "txt", " ").value_or(text_dictionary{});
    for (reported_code& one : unit.codes) {
        if (const auto found = meanings.find(one.code); found != meanings.end())
            one.meaning = trimmed(found->second);
        one.kept_frame = one.code == unit.frame_code;
    }
}

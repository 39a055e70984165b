// Turns JSON into a car. The schema checks its form; what is checked here is how fields depend on
// each other.
#include "car_library.h"
#include "hex_text.h"
#include "json_schema.h"
#include "live_values.h"

#include <QFile>

#include <algorithm>

namespace {

const json_value& car_schema() {
    static const json_value schema = [] {
        QFile file(QStringLiteral(":/cars/car.schema.json"));
        if (!file.open(QIODevice::ReadOnly))
            throw json_error(0, "the schema of car files is missing from this build");
        const QByteArray text = file.readAll();
        return parse_json(std::string_view(text.constData(), std::size_t(text.size())));
    }();
    return schema;
}

// Car files may separate bytes by blanks.
byte_string read_bytes(std::string text) {
    std::erase(text, ' ');
    return hex_bytes(text);
}

// Reads a member only if present, so that the struct's default holds otherwise.
void read(const json_value& from, std::string_view name, double& to) {
    if (const json_value* member = from.find(name))
        to = member->number;
}
void read(const json_value& from, std::string_view name, bool& to) {
    if (const json_value* member = from.find(name))
        to = member->boolean;
}
void read(const json_value& from, std::string_view name, std::string& to) {
    if (const json_value* member = from.find(name))
        to = member->text;
}
void read(const json_value& from, std::string_view name, std::vector<std::string>& to) {
    if (const json_value* member = from.find(name))
        for (const json_value& item : member->list)
            to.push_back(item.text);
}

struct monitor_name {
    std::string_view spark, compression; // empty: engines of that kind have no such monitor
    int byte;                            // 0: B, 1: C and D
    int bit;
};

// SAE J1979, service 01 PID 01.
constexpr monitor_name MONITORS[] = {
    {"misfire", "misfire", 0, 0},
    {"fuel_system", "fuel_system", 0, 1},
    {"components", "components", 0, 2},
    {"catalyst", "nmhc_catalyst", 1, 0},
    {"heated_catalyst", "nox_aftertreatment", 1, 1},
    {"evaporative", "", 1, 2},
    {"secondary_air", "boost_pressure", 1, 3},
    {"ac_refrigerant", "", 1, 4},
    {"oxygen_sensor", "exhaust_gas_sensor", 1, 5},
    {"oxygen_heater", "particulate_filter", 1, 6},
    {"egr", "egr", 1, 7},
};

void add_monitor(readiness_bytes& to, const json_value& name, bool compression, bool complete) {
    for (const monitor_name& monitor : MONITORS) {
        if ((compression ? monitor.compression : monitor.spark) != name.text)
            continue;
        const auto mask = std::uint8_t(1 << monitor.bit);
        if (monitor.byte == 0) {
            to.continuous |= std::uint8_t(complete ? mask : mask | mask << 4);
        } else {
            to.available |= mask;
            if (!complete)
                to.not_complete |= mask;
        }
        return;
    }
    throw json_error(name.line, std::string(compression ? "a diesel" : "a spark-ignition engine") +
                                    " has no monitor \"" + name.text + "\"");
}

readiness_bytes read_readiness(const json_value& from, bool compression) {
    readiness_bytes bytes;
    if (compression)
        bytes.continuous = 0x08;
    if (const json_value* complete = from.find("complete"))
        for (const json_value& name : complete->list)
            add_monitor(bytes, name, compression, true);
    if (const json_value* open = from.find("not_complete"))
        for (const json_value& name : open->list)
            add_monitor(bytes, name, compression, false);
    return bytes;
}

// PID to bytes; where the length is known, it must be that of the standard.
std::map<int, byte_string> read_values(const json_value& from) {
    std::map<int, byte_string> values;
    for (const auto& [name, value] : from.object) {
        const int pid = int(hex_number(name));
        byte_string bytes = read_bytes(value.text);
        const int length = pid_length(pid);
        if (length > 0 && int(bytes.size()) != length)
            throw json_error(value.line, "PID " + name + " has " + std::to_string(length) +
                                             " bytes, not " + std::to_string(bytes.size()));
        values[pid] = std::move(bytes);
    }
    return values;
}

freeze_frame read_freeze_frame(const json_value& from) {
    freeze_frame frame;
    read(from, "code", frame.code);
    if (const json_value* values = from.find("values"))
        frame.values = read_values(*values);
    return frame;
}

test_result read_test(const json_value& from) {
    const auto byte = [&from](std::string_view name) {
        return std::uint8_t(hex_number(from.find(name)->text));
    };
    const auto word = [&from](std::string_view name) {
        return std::uint16_t(from.find(name)->number);
    };
    return {byte("monitor"), byte("test"),   byte("unit"),
            word("value"),   word("lowest"), word("highest")};
}

void read_pids(const json_value& from, control_unit& to) {
    const json_value* const pids = from.find("pids");
    for (const std::uint8_t pid : read_bytes(pids->text)) {
        if (!to.fixed.count(pid) && !has_live_value(pid))
            throw json_error(pids->line,
                             "PID " + pids->text.substr(to.pids.size() * 3, 2) +
                                 " has no value: neither the engine gives one nor does \"fixed\"");
        if (std::find(to.pids.begin(), to.pids.end(), pid) != to.pids.end())
            throw json_error(pids->line,
                             "PID " + pids->text.substr(to.pids.size() * 3, 2) + " stands twice");
        to.pids.push_back(pid);
    }
}

std::uint32_t read_address(const json_value& from, const bus_protocol& protocol) {
    const auto address = hex_number(from.text);
    const bool short_ids = protocol.is_can() && !protocol.extended_ids;
    if (short_ids ? address < 0x7E8 || address > 0x7EF : from.text.size() != 2)
        throw json_error(
            from.line,
            "address " + from.text + " does not fit " + std::string(protocol.name) +
                (short_ids ? ", whose units are 7E8 to 7EF" : ", whose units have two digits"));
    return address;
}

void read_own_answers(const json_value& from, control_unit& to) {
    if (const json_value* answers = from.find("answers"))
        for (const auto& [request, messages] : answers->object)
            for (const json_value& one : messages.list)
                to.answers[hex_text(read_bytes(request), false)].push_back(read_bytes(one.text));
    if (const json_value* later = from.find("later"))
        for (const auto& [request, seconds] : later->object)
            to.later[hex_text(read_bytes(request), false)] = int(seconds.number);
    if (const json_value* delay = from.find("delay_ms"))
        to.delay_ms = int(delay->number);
}

control_unit read_unit(const json_value& from, const bus_protocol& protocol, bool compression) {
    control_unit unit;
    read(from, "name", unit.name);
    unit.address = read_address(*from.find("address"), protocol);
    if (const json_value* fixed = from.find("fixed"))
        unit.fixed = read_values(*fixed);
    read_pids(from, unit);
    read(from, "lamp", unit.lamp);
    if (const json_value* readiness = from.find("readiness"))
        unit.readiness = read_readiness(*readiness, compression);
    read(from, "stored", unit.stored);
    read(from, "pending", unit.pending);
    read(from, "permanent", unit.permanent);
    if (const json_value* frame = from.find("freeze_frame"))
        unit.frozen = read_freeze_frame(*frame);
    read(from, "calibrations", unit.calibrations);
    read(from, "verification_numbers", unit.verification_numbers);
    if (const json_value* counters = from.find("counters"))
        for (const json_value& one : counters->list)
            unit.counters.push_back(int(one.number));
    read(from, "short_name", unit.short_name);
    read_own_answers(from, unit);
    if (const json_value* tests = from.find("tests"))
        for (const json_value& test : tests->list)
            unit.tests.push_back(read_test(test));
    if (const json_value* services = from.find("silent_services"))
        for (const json_value& service : services->list)
            unit.silent_services.push_back(int(hex_number(service.text)));
    read(from, "clears_with_engine_off_only", unit.clears_with_engine_off_only);
    return unit;
}

engine_data read_engine(const json_value& from) {
    engine_data engine;
    const std::string& fuel = from.find("fuel")->text;
    engine.fuel = fuel == "diesel"   ? fuel_kind::diesel
                  : fuel == "hybrid" ? fuel_kind::hybrid
                                     : fuel_kind::petrol;
    read(from, "displacement_litres", engine.displacement_litres);
    read(from, "mass_kg", engine.mass_kg);
    read(from, "drag_area_m2", engine.drag_area_m2);
    read(from, "ambient_celsius", engine.ambient_celsius);
    engine.start_coolant_celsius = engine.ambient_celsius;
    read(from, "start_coolant_celsius", engine.start_coolant_celsius);
    read(from, "fuel_trim_percent", engine.fuel_trim_percent);
    return engine;
}

car car_of(const json_value& from) {
    car made;
    read(from, "title", made.title);
    const bus_protocol& protocol = *protocol_named(from.find("protocol")->text);
    made.protocol = protocol.number;
    if (const json_value* fill = from.find("fill_byte"))
        made.fill_byte = std::uint8_t(hex_number(fill->text));
    read(from, "vin", made.vin);
    made.engine = read_engine(*from.find("engine"));
    for (const json_value& unit : from.find("units")->list) {
        made.units.push_back(read_unit(unit, protocol, made.engine.fuel == fuel_kind::diesel));
        for (std::size_t i = 0; i + 1 < made.units.size(); ++i)
            if (made.units[i].address == made.units.back().address)
                throw json_error(unit.find("address")->line,
                                 "two units have the address " + unit.find("address")->text);
    }
    return made;
}

} // namespace

car read_car(std::string_view text, const std::string& file) {
    try {
        const json_value root = parse_json(text);
        check_against_schema(root, car_schema());
        car made = car_of(root);
        const std::size_t slash = file.rfind('/');
        const std::string base = slash == std::string::npos ? file : file.substr(slash + 1);
        made.name = base.substr(0, base.find('.'));
        return made;
    } catch (const json_error& error) {
        throw car_file_error(file, error.line(), error.what());
    }
}

void change_protocol(car& the_car, const bus_protocol& protocol) {
    // The engine is 7E8 with 11-bit identifiers and 10 elsewhere, the transmission 7E9 and 18.
    constexpr std::uint32_t ONE_BYTE[] = {0x10, 0x18, 0x28, 0x29, 0x2A, 0x2B, 0x2C, 0x2D};
    const bool short_ids = protocol.is_can() && !protocol.extended_ids;
    std::uint32_t next = 2;
    for (control_unit& unit : the_car.units) {
        const bool engine = unit.address == 0x7E8 || unit.address == 0x10;
        const bool transmission = unit.address == 0x7E9 || unit.address == 0x18;
        const std::uint32_t place = engine ? 0 : transmission ? 1 : std::min(next++, 7u);
        unit.address = short_ids ? 0x7E8 + place : ONE_BYTE[place];
    }
    the_car.protocol = protocol.number;
}

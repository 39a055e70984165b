// What a virtual car's own data says that the trouble-codes screen has to show.
#pragma once

#include "car.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

struct truth {
    std::string lamp = "OFF";
    int count = 0;
    std::multiset<std::string> codes;
    std::vector<std::string> states; // of the engine's monitors
};

inline bool is_can(const car& the_car) {
    return the_car.protocol >= 6 && the_car.protocol <= 9;
}
inline bool silent(const control_unit& unit, int service) {
    return std::ranges::find(unit.silent_services, service) != unit.silent_services.end();
}

// By its status, which need not agree with its list.
inline int announced_codes(const control_unit& unit) {
    const auto own = unit.answers.find("0101");
    return own == unit.answers.end() ? static_cast<int>(unit.stored.size())
                                     : own->second.front()[2] & 0x7F;
}

inline std::vector<std::string> monitor_states(const readiness_bytes& bytes) {
    std::vector<std::string> states;
    const auto add = [&](bool there, bool incomplete) {
        states.push_back(!there ? "N/A" : incomplete ? "X" : "OK");
    };
    for (int bit = 0; bit < 3; ++bit)
        add(bytes.continuous >> bit & 1, bytes.continuous >> (bit + 4) & 1);
    for (int bit = 0; bit < 8; ++bit)
        add(bytes.available >> bit & 1, bytes.not_complete >> bit & 1);
    return states;
}

inline truth truth_of(const car& the_car) {
    truth told;
    for (const control_unit& unit : the_car.units) {
        if (unit.lamp)
            told.count += announced_codes(unit);
        if (&unit == &the_car.units.front()) {
            told.lamp = unit.lamp ? "ON" : "OFF";
            told.states = monitor_states(unit.readiness);
        }
        if (silent(unit, 3))
            continue;
        told.codes.insert(unit.stored.begin(), unit.stored.end());
        // The older buses fill an empty answer with zeros, and its first group is kept as it
        // stands.
        if (unit.stored.empty() && !is_can(the_car))
            told.codes.insert("P0000");
    }
    return told;
}

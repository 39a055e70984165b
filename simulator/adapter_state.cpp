#include "adapter_state.h"

void adapter_state::defaults() {
    settings = {};
    protocol = bus_open ? protocol : memory.protocol;
    automatic = bus_open ? automatic : memory.automatic;
}

void adapter_state::reset() {
    settings = {};
    protocol = memory.protocol;
    automatic = memory.automatic;
    bus_open = false;
    last_message.clear();
}

void adapter_state::choose_protocol(int number, bool search_others, bool remember) {
    protocol = number;
    automatic = search_others || number == 0;
    bus_open = false;
    settings.header.reset();
    if (remember)
        remember_protocol();
}

void adapter_state::remember_protocol() {
    if (!settings.memory)
        return;
    memory.protocol = protocol;
    memory.automatic = automatic;
}

std::string adapter_state::protocol_text() const {
    const std::string name(protocol_description(protocol));
    return automatic && protocol != 0 ? "AUTO, " + name : name;
}

std::string adapter_state::protocol_number() const {
    return std::string(automatic ? "A" : "") + "0123456789ABC"[protocol];
}

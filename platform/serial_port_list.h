// The door to the list of existing serial ports.
#pragma once

#include <functional>
#include <string>
#include <vector>

struct serial_port_entry {
    std::string path;        // of the device file
    std::string name, maker; // as the cable reports them; may be empty
    bool operator==(const serial_port_entry&) const = default;
};

// The usual speeds of adapters, in the order in which they are tried.
inline constexpr long USUAL_SPEEDS[] = {38400, 9600, 115200, 230400, 500000};

using serial_port_lister = std::function<std::vector<serial_port_entry>()>;

#include "command_functions.h"
#include "commands.h"
#include "display_text.h"
#include "qt_serial_line.h"
#include "report_printer.h"

#include <iomanip>
#include <nlohmann/json.hpp>
#include <ostream>

int run_serial_ports(const desk& work) {
    const std::vector<serial_port_entry> ports = list_serial_ports();
    if (work.asked.json) {
        ordered_json list = ordered_json::array();
        for (const serial_port_entry& port : ports)
            list.push_back({{"path", port.path}, {"name", port.name}, {"maker", port.maker}});
        work.out << json_lines({{"ports", list}});
        return 0;
    }
    work.out << std::left << std::setw(20) << "Port" << std::setw(32) << "Name"
             << "Maker\n";
    for (const serial_port_entry& port : ports)
        work.out << std::setw(19) << port.path << ' ' << std::setw(31) << printable_line(port.name)
                 << ' ' << printable_line(port.maker) << '\n';
    if (ports.empty())
        work.out << "none\n";
    return 0;
}

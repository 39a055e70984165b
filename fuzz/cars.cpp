// Car files: rejected with a reason, or a car whose codes a client reads as in the file.
#include "bus_protocols.h"
#include "car_library.h"
#include "fuzz_one.h"
#include "trouble_codes.h"
#include "virtual_adapter.h"

#include <algorithm>

namespace {

using std::chrono::milliseconds;

std::string say(virtual_adapter& adapter, milliseconds& now, const std::string& command) {
    adapter.receive(command + "\r", now);
    std::string reply;
    while (const auto next = adapter.next_output()) {
        now = std::max(now, *next);
        reply += adapter.take_output(now);
    }
    REQUIRE(reply.ends_with('>'));
    return reply;
}

void check_codes(const car& the_car, const std::string& reply) {
    std::vector<std::string> truth;
    for (const control_unit& unit : the_car.units)
        if (std::find(unit.silent_services.begin(), unit.silent_services.end(), 3) ==
            unit.silent_services.end())
            truth.insert(truth.end(), unit.stored.begin(), unit.stored.end());
    std::vector<std::string> read =
        read_codes("03", reply, {bus_form::can, bus_source::headers}).codes;
    std::sort(truth.begin(), truth.end());
    std::sort(read.begin(), read.end());
    REQUIRE(read == truth);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) try {
    car the_car = read_car(as_text(bytes), "folder/some.json");
    REQUIRE(the_car.name == "some" && !the_car.title.empty());
    REQUIRE(the_car.vin.empty() || the_car.vin.size() == 17);
    REQUIRE(!the_car.units.empty() && the_car.units.size() <= 8);

    virtual_adapter adapter(the_car, {.faults = {}, .latency = milliseconds(0)});
    milliseconds now{0};
    adapter.connection_opened(now);
    for (const char* command : {"AT E0", "AT H1", "01 00", "01 20", "01 40", "01 01", "01 0C",
                                "02 02 00", "AT H0", "06 00", "06 01", "07", "09 02", "09 04"})
        say(adapter, now, command);
    const std::string reply = say(adapter, now, "03");
    if (protocol_numbered(the_car.protocol)->is_can())
        check_codes(the_car, reply);
    say(adapter, now, "04");
    return 0;
} catch (const car_file_error& error) {
    REQUIRE(error.file() == "folder/some.json" && !error.reason().empty() && error.line() >= 0);
    return 0;
}

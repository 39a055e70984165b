// Client input to the virtual adapter; at "|" a second passes.
#include "car_library.h"
#include "fuzz_one.h"
#include "virtual_adapter.h"

#include <algorithm>

namespace {

using std::chrono::milliseconds;

constexpr std::size_t LONGEST_INPUT = 2048; // each command may search the buses for a while

void drain(virtual_adapter& adapter, milliseconds& now) {
    while (const auto next = adapter.next_output()) {
        now = std::max(now, *next);
        adapter.take_output(now);
    }
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const std::vector<car> cars{load_car("can11"), load_car("three_units"),
                                       load_car("iso9141")};
    std::string_view text = as_text(bytes).substr(0, LONGEST_INPUT);
    car the_car = cars[bytes.size() % cars.size()];
    virtual_adapter adapter(the_car, {});
    milliseconds now{0};
    adapter.connection_opened(now);
    while (!text.empty()) {
        const std::string_view part = text.substr(0, text.find('|'));
        adapter.receive(part, now);
        text.remove_prefix(std::min(part.size() + 1, text.size()));
        now += milliseconds(1000);
        drain(adapter, now);
    }
    // After any input, a reset brings the prompt back.
    adapter.receive("\r", now);
    drain(adapter, now);
    adapter.receive("AT Z\r", now);
    std::string reply;
    while (const auto next = adapter.next_output()) {
        now = std::max(now, *next);
        reply += adapter.take_output(now);
    }
    REQUIRE(reply.ends_with('>'));
    return 0;
}

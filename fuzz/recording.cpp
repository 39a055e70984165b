// Recordings: refused with file and line, or played back as they are.
#include "recording.h"

#include "fuzz_one.h"
#include "recorded_adapter.h"

#include <set>

int fuzz_one(std::span<const std::uint8_t> bytes) try {
    using std::chrono::milliseconds;
    const recording recorded = read_recording(as_text(bytes), "talk");
    REQUIRE(!recorded.connections.empty());
    recorded_adapter adapter(recorded, 1, milliseconds(0));
    const std::set<std::size_t> opens(recorded.connections.begin(), recorded.connections.end());
    for (std::size_t i = 0; i < recorded.exchanges.size(); ++i) {
        const recorded_exchange& one = recorded.exchanges[i];
        REQUIRE(one.command.has_value() != opens.contains(i));
        if (!one.command)
            adapter.connection_opened(one.asked);
        else
            adapter.receive(*one.command + "\r", one.asked);
        std::string expected;
        milliseconds last{0};
        for (const recorded_piece& piece : one.pieces) {
            REQUIRE(piece.after >= last);
            last = piece.after;
            expected += piece.bytes;
        }
        REQUIRE(adapter.take_output(one.asked) == expected);
        REQUIRE(!adapter.next_output() == !adapter.wants_close(one.asked));
    }
    adapter.receive("\x01never sent\r", milliseconds(0));
    return 0;
} catch (const recording_error& error) {
    REQUIRE(error.line() >= 0 && std::string_view(error.what()).starts_with("talk"));
    return 0;
}

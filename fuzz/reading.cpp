// What the trouble-codes screen makes of the answers to "01 01" and to "03". The first byte says
// what is known of the bus, the rest are the answers, each up to its prompt.
#include "codes_view.h"
#include "fuzz_app.h"
#include "fuzz_one.h"
#include "text.h"

#include <algorithm>

namespace {

constexpr const char* PROTOCOLS[] = {"", "AUTO", "AUTO, ISO 9141-2", "ISO 15765-4 (CAN 11/500)"};
constexpr bus_form FORMS[] = {bus_form::unknown, bus_form::can, bus_form::older};
constexpr int MOST_COMMANDS = 200;

// The digits that a code was made of.
std::string digits_of(const std::string& code) {
    const auto first = std::string("PCBU").find(code[0]) * 4 + std::size_t(code[1] - '0');
    return "0123456789ABCDEF"[first & 15] + code.substr(2);
}

bool holds(const std::string& answer, const std::string& digits) {
    const auto same = [](char a, char b) {
        return std::toupper(static_cast<unsigned char>(a)) == b || a == b;
    };
    return !std::ranges::search(answer, digits, same).empty();
}

void codes_were_sent(const codes_report& shown, const std::string& answer) {
    const std::string bare = without(answer, std::string_view(" \n\0", 3));
    for (const code_row& row : shown.codes) {
        const std::string& code = row[0];
        REQUIRE(code.size() == 5);
        REQUIRE(contains("PCBU", code.substr(0, 1)));
        REQUIRE(code[1] >= '0' && code[1] <= '3');
        REQUIRE(is_hex(code.substr(2)));
        // A code may stand in two frames.
        REQUIRE(contains(bare, ":") || holds(bare, digits_of(code)));
    }
}

void status_is_possible(const codes_report& shown, const std::string& answer) {
    REQUIRE(shown.lamp == "ON" || shown.lamp == "OFF" || shown.lamp == "N/A" || shown.lamp.empty());
    REQUIRE(shown.readiness.empty() || shown.readiness.size() == 11);
    if (!shown.count)
        return;
    const std::string bare = without(answer, std::string_view(" \n\0", 3));
    REQUIRE(contains(bare, "4101"));
    const auto lines = std::count(answer.begin(), answer.end(), '\r') + 1;
    REQUIRE(*shown.count >= 0 && *shown.count <= 127 * lines);
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static fuzz_app fuzzed(app_harness::use_wifi);
    app_harness& app = fuzzed.app;
    if (!app.delegate->current_screen())
        app.delegate->do_read_codes();
    auto& screen = static_cast<readCodes&>(*app.delegate->current_screen());
    const unsigned choice = bytes.empty() ? 0 : bytes[0];
    fuzzed.begin();
    g_cur_protocol = std::string_view(PROTOCOLS[choice % 4]);
    g_bus_form = FORMS[choice / 4 % 3];

    const std::string text(as_text(bytes).substr(bytes.empty() ? 0 : 1));
    const auto replies = split(text, ">");
    std::size_t next = 0;
    const auto reply = [&] {
        return next < replies.size() ? std::string(replies[next++]) + ">" : "NO DATA\r\r>";
    };
    std::string status, codes;
    fuzzed.press("readCodes");
    for (int commands = 0; screen.task_running(); ++commands) {
        REQUIRE(commands < MOST_COMMANDS);
        const std::string asked = app.sent();
        REQUIRE(asked.ends_with('\r'));
        app.messages.shown.clear();
        if (asked == "01 01\r")
            app.receive(status = reply());
        else if (asked == "03\r")
            app.receive(codes = reply());
        else
            app.receive("OK\r\r>");
        REQUIRE(app.messages.shown.size() <= 1);
    }
    const codes_report shown = screen.report();
    codes_were_sent(shown, codes);
    status_is_possible(shown, status);
    return 0;
}

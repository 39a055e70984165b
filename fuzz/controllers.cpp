// Lines of several control units, their names and data; the helpers that clean a reply first.
#include "fuzz_one.h"
#include "mac_toolies.h"
#include "reply_lines.h"
#include "text.h"

namespace {

void check_line(const std::string& line) {
    const std::string name = mac_toolies::pull_ECU(line);
    REQUIRE(name == "Engine" || name == "Transmission" ||
            (name.starts_with("ECU=") && name.size() <= 7 && contains(line, name.substr(4))));
    for (const std::string_view pid : {"00", "01", "0C", "20"})
        for (const std::string_view unit : {"", "10", "7E"})
            if (const auto data = mac_toolies::pull_PID_msg(line, pid, unit))
                REQUIRE(line.ends_with(*data) && line.size() - data->size() >= 5);
}

void check_cleaning(std::string_view reply) {
    const std::string cleaned = mac_toolies::clean_a_reply(reply);
    REQUIRE(!contains(cleaned, ">") && cleaned.size() <= reply.size());
    REQUIRE(reply.ends_with(mac_toolies::fix_3dots(reply)));
    for (const std::string_view pid : {"", "0C", "0c0"}) {
        const std::string checked = mac_toolies::check_bad_reply(reply, pid);
        REQUIRE(checked == "~" || checked == reply);
    }
    const int pieces = mac_toolies::count_items_in_Str(reply, "\r");
    REQUIRE(pieces >= 0 && pieces <= 150);
    REQUIRE(!contains(mac_toolies::myReplace(reply, "\r", ","), "\r"));
    REQUIRE(mac_toolies::padRight(reply, 14, "0").size() == 14);
    REQUIRE(mac_toolies::padLeft(reply, 14, "0").ends_with(reply));
    REQUIRE(!contains(mac_toolies::formatStringWithDouble(reply, 3) + " ", "nan") ||
            contains(reply, "nan"));
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string_view reply = as_text(bytes);
    const auto lines = mac_toolies::Pull_ECU_msg(reply);
    REQUIRE(lines && !lines->empty());
    for (const std::string& line : *lines) {
        REQUIRE(line.find_first_of(" \r\n") == line.npos);
        check_line(line);
    }
    for (const std::string& line : reply_lines(reply)) {
        REQUIRE(!line.empty() && line.find_first_of(std::string_view(" \r\n>\0", 5)) == line.npos);
        check_line(line);
    }
    check_cleaning(reply);
    return 0;
}

// The text tables: every reader is given the same file.
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "scratch_folder.h"
#include "text.h"

#include <map>
#include <stdexcept>

namespace {

// The file under the names of all tables.
const std::string& tables_root() {
    static const scratch_folder folder;
    static const std::string root = [] {
        std::filesystem::create_directories(folder.path("tables"));
        for (const char* name :
             {"P0_Codes", "readinessLabels", "OBDMID_CAN", "TID_CAN", "OBD_MODES", "OBD_FUEL_TYPE",
              "FIELD_PIDS_0", "FIELD_PIDS_1", "FIELD_PIDS_2"})
            std::filesystem::create_symlink("../table",
                                            folder.path("tables/" + std::string(name) + ".txt"));
        return folder.path(".");
    }();
    folder.write("table", "");
    return root;
}

// The slow way to read a dictionary.
std::map<std::string, std::string> plain_dictionary(const std::vector<std::string>& lines,
                                                    std::string_view delimiter) {
    std::map<std::string, std::string> entries;
    for (const std::string& line : lines) {
        const std::size_t found = line.find(delimiter);
        if (found == line.npos)
            break;
        const std::string_view key = std::string_view(line).substr(0, found);
        entries[std::string(trimmed(key))] = line.substr(found);
    }
    return entries;
}

void check_dictionary(const mac_toolies& decoder, const std::vector<std::string>& lines,
                      std::string_view delimiter) {
    const auto read = decoder.get_dictionary_from_resource("P0_Codes", "txt", delimiter);
    const auto expected = plain_dictionary(lines, delimiter);
    REQUIRE(read && read->size() == expected.size());
    for (const auto& [key, text] : expected) {
        const auto found = read->find(key);
        REQUIRE(found != read->end() && found->second == text);
    }
}

void check_readiness(const mac_toolies& decoder, std::size_t lines) {
    std::vector<readiness_flag> flags;
    try {
        decoder.handle_readiness_codes("07FF00", flags);
        REQUIRE(lines >= 11);
    } catch (const std::out_of_range&) {
        REQUIRE(lines < 11);
    }
    REQUIRE(flags.size() == std::min<std::size_t>(lines, 11));
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    const std::string root = tables_root();
    std::ofstream(root + "/table", std::ios::binary) << as_text(bytes);
    static const bundle resources(root, "en");
    static const user_defaults settings("/nonexistent/settings.conf");
    const mac_toolies decoder({&resources, &settings, nullptr, nullptr}); // it keeps what it read

    const auto lines = decoder.get_array_from_resource("P0_Codes", "txt");
    REQUIRE(lines && !lines->empty());
    std::string joined;
    for (const std::string& line : *lines)
        joined.append(line).append("\n");
    joined.pop_back();
    REQUIRE(joined == as_text(bytes));
    for (const std::string_view delimiter : {" ", "|", "  "})
        check_dictionary(decoder, *lines, delimiter);
    check_readiness(decoder, lines->size());
    for (const std::string_view number : {"00", "1F", "33", "5F", "80", "FF"}) {
        decoder.get_pid_name(number, true);
        decoder.get_pid_name(number, false);
        for (const bool is_monitor : {true, false})
            decoder.grab_CAN_mode6_OBDMID_TESTID_description(number, is_monitor);
        for (const std::string_view pid : {"1C", "51"})
            decoder.translate_once("41" + std::string(pid) + std::string(number));
    }
    return 0;
}

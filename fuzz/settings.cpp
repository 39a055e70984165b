// The settings file: read in any state, and written back unchanged.
#include "constantes.h"
#include "fuzz_one.h"
#include "scratch_folder.h"
#include "user_defaults.h"

namespace {

constexpr const char* KEYS[] = {KS_INTERFACE_KEY,    WIFI_IP_KEY,  WIFI_PORT_KEY,
                                KS_METRIC_UNITS_KEY, LOG_RUNS_KEY, PIDS_ARRAY_KEY};

bool say_the_same(const user_defaults& one, const user_defaults& other) {
    for (const char* key : KEYS)
        if (one.contains(key) != other.contains(key) || one.string(key) != other.string(key) ||
            one.integer(key) != other.integer(key) || one.boolean(key) != other.boolean(key) ||
            one.string_array(key) != other.string_array(key))
            return false;
    return true;
}

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const scratch_folder folder;
    static long runs = 0;
    // A new name each time: files of one name are cached by size and time.
    const std::string path = folder.write("settings-" + std::to_string(++runs), as_text(bytes));
    user_defaults read(path);
    read.set_string(WIFI_IP_KEY, read.string(WIFI_IP_KEY) + "~"); // something to write
    REQUIRE(read.synchronize());
    REQUIRE(say_the_same(read, user_defaults(path)));
    std::filesystem::remove(path);
    return 0;
}

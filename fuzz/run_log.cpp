// Run log files, as charts read them.
#include "run_log.h"

#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "parameters.h"
#include "pieces_of_log.h"
#include "scratch_folder.h"
#include "text.h"

#include <cmath>

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const scratch_folder folder;
    static const fuzz_toolkit toolkit(true);
    const std::string path = folder.write("run.gol", as_text(bytes));
    std::string error;
    const auto log = read_run_log(path, toolkit.decoder, error);
    REQUIRE(log.has_value() == error.empty());
    if (!log)
        return 0;
    const std::vector<std::string> lines = lines_of(as_text(bytes));
    REQUIRE(log->samples.rows() == lines.size());
    for (std::size_t row = 0; row < lines.size(); ++row) {
        const std::vector<std::string_view> replies = split(std::string_view(lines[row]), ",");
        REQUIRE(replies.size() == log->pids.size());
        for (std::size_t p = 0; p < replies.size(); ++p) {
            REQUIRE(log->samples.text(row, p) == without(trimmed(replies[p], "\r\n"), " "));
            const double value = parameter_value(toolkit.decoder, log->samples.text(row, p)).value;
            REQUIRE(std::isnan(value) ? std::isnan(log->samples.value(row, p))
                                      : log->samples.value(row, p) == value);
        }
    }
    return 0;
}

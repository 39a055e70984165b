#include "bundle.h"
#include "log_export.h"
#include "mac_toolies.h"
#include "ratio_table.h"
#include "rows.h"
#include "user_defaults.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace {

constexpr unsigned CYCLES = 20'000;
constexpr unsigned FIELDS = 4;
constexpr std::size_t LINE = 1000;

struct export_bench {
    QTemporaryDir folder;
    bundle resources;
    user_defaults settings{path("bench.conf")};
    mac_toolies toolies{{&resources, &settings}};

    export_bench() {
        std::FILE* log = std::fopen(path("run.gol").c_str(), "w");
        for (unsigned i = 0; i < CYCLES; ++i)
            std::fprintf(log, "410D%02X,4111%02X,410C%04X,4105%02X\n", i % 256, i * 3 % 256,
                         i * 97 % 65536, 60 + i / 500);
        std::fclose(log);
    }
    std::string path(const char* name) const {
        return folder.filePath(QString::fromUtf8(name)).toStdString();
    }
};

// The same numbers: a field's data digits read as one number and printed.
void plain_loop(const export_bench& bench) {
    std::FILE* log = std::fopen(bench.path("run.gol").c_str(), "r");
    std::FILE* table = std::fopen(bench.path("plain.csv").c_str(), "w");
    char line[LINE];
    while (std::fgets(line, sizeof line, log)) {
        const char* before = "";
        for (char* field = std::strtok(line, ",\n"); field; field = std::strtok(nullptr, ",\n")) {
            std::fprintf(table, "%s%f", before,
                         static_cast<double>(std::strtoul(field + 4, nullptr, 16)));
            before = ",";
        }
        std::fputc('\n', table);
    }
    std::fclose(table);
    std::fclose(log);
    std::remove(bench.path("plain.csv").c_str());
}

void export_run(const export_bench& bench) {
    const std::string table = bench.path("run.csv");
    const export_outcome outcome = export_log(bench.toolies, bench.path("run.gol"), table);
    if (outcome.rows != CYCLES)
        throw std::runtime_error("the export is not whole: " + outcome.error);
    std::remove(table.c_str());
}

} // namespace

void add_export_rows(ratio_table& table) {
    const auto bench = std::make_shared<export_bench>();
    table.add_ratio("exporting a log of 20,000 cycles",
                    {[bench] { export_run(*bench); }, CYCLES * FIELDS},
                    "a C loop that reads and prints the numbers",
                    {[bench] { plain_loop(*bench); }, CYCLES * FIELDS}, reach::at_most, 3);
}

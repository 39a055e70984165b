#include "bundle.h"
#include "constantes.h"
#include "mac_toolies.h"
#include "ratio_table.h"
#include "rows.h"
#include "user_defaults.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <memory>

namespace {

constexpr std::size_t ROUNDS = 50; // of requesting every parameter

// The usual parameters with changing values, as the sampling loop passes them on; now and then
// NO DATA.
std::vector<std::string> drive() {
    const struct {
        std::string_view pid;
        int bytes;
        unsigned start;
        unsigned step;
    } parameters[] = {
        {"0C", 2, 0x0BB8, 97}, {"0D", 1, 40, 1},      {"05", 1, 0x6E, 1},   {"04", 1, 0x40, 3},
        {"11", 1, 0x2A, 2},    {"10", 2, 0x0258, 31}, {"0F", 1, 0x3C, 1},   {"0B", 1, 0x30, 2},
        {"0E", 1, 0x80, 1},    {"06", 1, 0x7D, 1},    {"07", 1, 0x82, 1},   {"14", 2, 0x5A80, 517},
        {"2F", 1, 0x90, 1},    {"42", 2, 0x36B0, 5},  {"1F", 2, 0x0100, 1}, {"03", 2, 0x0200, 0},
        {"33", 1, 0x64, 0},    {"45", 1, 0x10, 1},    {"31", 2, 0x1000, 1}, {"34", 4, 0x7FFF, 977},
        {"3C", 2, 0x0B00, 3},  {"1C", 1, 1, 0}};
    std::vector<std::string> replies;
    for (std::size_t round = 0; round < ROUNDS; ++round) {
        for (const auto& p : parameters) {
            std::string reply = "41 ";
            reply += p.pid;
            const unsigned value = p.start + static_cast<unsigned>(round) * p.step;
            for (int byte = p.bytes - 1; byte >= 0; --byte)
                reply.append(" ").append(
                    mac_toolies::convertByte2HexStr(value >> (8 * byte) & 0xFF));
            replies.push_back(reply + "\r");
        }
        if (round % 25 == 0)
            replies.push_back("NO DATA\r");
    }
    return replies;
}

struct decoding_bench {
    QTemporaryDir folder;
    bundle resources;
    user_defaults settings{folder.filePath(QStringLiteral("bench.conf")).toStdString()};
    mac_toolies toolies{{&resources, &settings}};
    std::vector<std::string> replies = drive();
    std::vector<double> speeds;

    decoding_bench() {
        for (std::size_t i = 0; i < replies.size(); ++i)
            speeds.push_back(750 + 0.25 * static_cast<double>(i * 97 % 20000));
    }
};

timed_work print_speeds(const std::shared_ptr<decoding_bench>& bench) {
    return {[bench] {
                for (const double speed : bench->speeds) {
                    char text[32];
                    benchmark::DoNotOptimize(std::snprintf(text, sizeof text, "%.2f RPM", speed));
                    benchmark::ClobberMemory();
                }
            },
            bench->speeds.size()};
}

template <typename OPERATION>
timed_work over_replies(const std::shared_ptr<decoding_bench>& bench, bool metric,
                        OPERATION operation) {
    return {[bench, metric, operation] {
                bench->settings.set_boolean(KS_METRIC_UNITS_KEY, metric);
                for (const std::string& reply : bench->replies)
                    benchmark::DoNotOptimize(operation(bench->toolies, reply));
            },
            bench->replies.size()};
}

} // namespace

void add_decoding_rows(ratio_table& table) {
    const auto bench = std::make_shared<decoding_bench>();
    const std::string yardstick = "snprintf(\"%.2f RPM\", v)";
    const auto translate = [](const mac_toolies& toolies, const std::string& reply) {
        return toolies.translateResponse(reply);
    };
    const auto value = [](const mac_toolies& toolies, const std::string& reply) {
        return toolies.get_OBDVal(reply);
    };
    for (const bool metric : {false, true}) {
        const std::string units = metric ? ", metric" : ", imperial";
        table.add_ratio("translateResponse of a drive's replies" + units,
                        over_replies(bench, metric, translate), yardstick, print_speeds(bench),
                        reach::at_most, 2);
        table.add_ratio("get_OBDVal of a drive's replies" + units,
                        over_replies(bench, metric, value), yardstick, print_speeds(bench),
                        reach::at_most, 2);
    }
}

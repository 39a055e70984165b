// `kestrom live` as a user runs it from a shell: what it prints, and what is left of its log
// however it ends.
#include "car_library.h"
#include "shell_fixture.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <csignal>
#include <gmock/gmock.h>
#include <memory>
#include <sstream>

namespace {

using list = std::vector<std::string>;
using testing::HasSubstr;

list lines_of(const std::string& text) {
    std::istringstream stream(text);
    list lines;
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

std::string only_log_below(const QString& users_home) {
    const QDir folder(users_home + QStringLiteral("/kestrom/loggies"));
    const QStringList names =
        folder.entryList({QStringLiteral("*.gol"), QStringLiteral("*.txt")}, QDir::Files);
    EXPECT_EQ(names.size(), 1);
    QFile file(folder.filePath(names.value(0)));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
}

class live_command_line : public shell {
  protected:
    live_command_line() : server(engine_that_stands_still(), quick()) {
        EXPECT_TRUE(server.listen("127.0.0.1", 0));
    }
    static car engine_that_stands_still() {
        car made = load_car("can11");
        made.units.resize(1);
        made.units[0].pids = {0x05, 0x0C, 0x0D};
        made.units[0].fixed = {{0x05, {0x7B}}, {0x0C, {0x1A, 0xF8}}, {0x0D, {0x64}}};
        return made;
    }
    outcome live(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), {"--adapter", address(server), "live"});
        return run(arguments);
    }
    tcp_adapter_server server;
};

TEST_F(live_command_line, prints_a_line_of_values_for_each_cycle_and_logs_it) {
    const outcome told = live({"--cycles", "3", "--log"});
    EXPECT_EQ(told.status, 0) << told.err;
    EXPECT_EQ(lines_of(told.out),
              (list{"Vehicle Speed (mph),Absolute Throttle Position (%),Engine Speed (RPM),"
                    "Engine Coolant Temperature (° F)",
                    "62.5,nan,1726,181.4", "62.5,nan,1726,181.4", "62.5,nan,1726,181.4"}));
    EXPECT_THAT(told.err, HasSubstr("3 cycles, 12 requests in "));
    EXPECT_THAT(told.err, HasSubstr(" requests per second\nLog: " + home.path().toStdString()));
    EXPECT_EQ(lines_of(only_log_below(home.path())), list(3, "410D64,NODATA,410C1AF8,41057B"));
}

TEST_F(live_command_line, prints_lines_of_json_and_touches_nothing_of_the_users) {
    const outcome told = live({"--pids=0c,11", "--seconds", "1.5", "--json"});
    EXPECT_EQ(told.status, 0) << told.err;
    EXPECT_THAT(told.err, HasSubstr("left out, not supported by the car: 11\n"));
    const list lines = lines_of(told.out);
    ASSERT_GT(lines.size(), 3u);
    int number = 0;
    for (const std::string& line : lines) {
        const QJsonObject read = QJsonDocument::fromJson(QByteArray::fromStdString(line)).object();
        if (++number == static_cast<int>(lines.size())) {
            EXPECT_EQ(read.value(QLatin1String("cycles")).toInt(), number - 1);
            EXPECT_GE(read.value(QLatin1String("requests")).toInt(), number - 1);
            const double seconds = read.value(QLatin1String("seconds")).toDouble();
            EXPECT_GE(seconds, 1.5) << "the way to the car counts for nothing";
            const double rate = read.value(QLatin1String("requests")).toInt() / seconds;
            EXPECT_NEAR(read.value(QLatin1String("requests_per_second")).toDouble(), rate,
                        0.1 + rate / 1000);
        } else {
            EXPECT_EQ(read.value(QLatin1String("cycle")).toInt(), number);
            const QJsonObject values = read.value(QLatin1String("values")).toObject();
            EXPECT_EQ(values.value(QLatin1String("0C")).toDouble(), 1726);
            EXPECT_EQ(values.size(), 1) << "no column of null";
        }
    }
    EXPECT_TRUE(QDir(home.path()).isEmpty());
}

TEST_F(live_command_line, that_brings_nothing_fails_with_a_reason) {
    const struct {
        std::vector<std::string> arguments;
        const char* reason;
    } cases[] = {{{"--run", "o2", "--cycles", "1"}, "oxygen"},
                 {{"--pids", "11", "--cycles", "1"}, "none of the parameters asked for"},
                 {{"--cycles", "1000000", "--timeout", "2.5"}, "the time limit has passed"}};
    for (const auto& [arguments, reason] : cases) {
        const outcome told = live(arguments);
        EXPECT_EQ(told.status, 1) << reason;
        EXPECT_THAT(told.err, HasSubstr(reason));
    }
    const outcome short_run = run({"--demo", "live", "--seconds", "0.01"}); // this car takes longer
    EXPECT_EQ(short_run.status, 1);
    EXPECT_THAT(short_run.err, HasSubstr("no cycle was completed"));
    QFile in_the_way(home.filePath(QStringLiteral("kestrom")));
    EXPECT_TRUE(in_the_way.open(QIODevice::WriteOnly));
    const outcome told = live({"--cycles", "2", "--log"});
    EXPECT_EQ(told.status, 1);
    EXPECT_EQ(lines_of(told.out).size(), 3u) << "the run goes on";
    EXPECT_THAT(told.err, HasSubstr("kestrom/loggies: Not a directory\n"));
    EXPECT_EQ(told.err.find("loggies folder"), std::string::npos) << told.err;
}

struct ended_run {
    list printed; // cycles
    list logged;
    std::string log;
    int status;
};

// Lets `count` runs go on side by side, each in its own home, and ends each by the signal after
// another number of cycles.
std::vector<ended_run> runs_ended_by(int signal, int count,
                                     void (*start)(QProcess&, const std::string&, const QString&)) {
    struct one {
        QTemporaryDir home;
        QProcess process;
        QByteArray out;
    };
    std::vector<std::unique_ptr<one>> all;
    for (int i = 0; i < count; ++i) {
        all.push_back(std::make_unique<one>());
        start(all.back()->process, i % 2 == 0 ? "0C" : "0C,0D", all.back()->home.path());
    }
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < count; ++i) {
        one& run = *all[static_cast<std::size_t>(i)];
        while (run.out.count('\n') < 3 + i % 7 * 5 && clock.elapsed() < 60'000) {
            run.process.waitForReadyRead(100);
            run.out += run.process.readAllStandardOutput();
        }
        ::kill(static_cast<pid_t>(run.process.processId()), signal);
    }
    std::vector<ended_run> ended;
    for (const auto& run : all) {
        run->process.waitForFinished();
        run->out += run->process.readAllStandardOutput();
        run->out.truncate(run->out.lastIndexOf('\n') + 1); // the complete lines
        list printed = lines_of(run->out.toStdString());
        if (!printed.empty())
            printed.erase(printed.begin());
        const std::string log = only_log_below(run->home.path());
        ended.push_back({printed, lines_of(log), log, run->process.exitCode()});
    }
    return ended;
}

// The engine speed that a line of the log begins with, as it is printed (SAE J1979: quarters).
std::string engine_speed(const std::string& logged) {
    std::ostringstream printed;
    printed << std::stoi(logged.substr(4, 4), nullptr, 16) / 4.0;
    return printed.str();
}

class ended_live_command : public shell {
  protected:
    static void start_demo(QProcess& process, const std::string& pids, const QString& users_home) {
        start(process, {"--demo", "live", "--log", "--pids", pids}, users_home);
    }
    static void expect_whole(const ended_run& run) {
        EXPECT_GE(run.printed.size(), 2u);
        EXPECT_GE(run.logged.size(), run.printed.size()) << "announced, but not in the log";
        EXPECT_TRUE(run.log.ends_with('\n'));
        for (const std::string& line : run.logged)
            ASSERT_THAT(line, testing::MatchesRegex("410C[0-9A-F]{4}(,410D[0-9A-F]{2})?"));
        for (std::size_t cycle = 0; cycle < std::min(run.printed.size(), run.logged.size());
             ++cycle)
            EXPECT_EQ(run.printed[cycle].substr(0, run.printed[cycle].find(',')),
                      engine_speed(run.logged[cycle]));
    }
};

// KESTROM_KILLS says how many; scripts/kill-runs asks for a hundred.
TEST_F(ended_live_command, every_cycle_that_was_announced_survives_a_kill) {
    const QByteArray asked = qgetenv("KESTROM_KILLS");
    for (int left = asked.isEmpty() ? 10 : asked.toInt(); left > 0; left -= 5)
        for (const ended_run& run : runs_ended_by(SIGKILL, std::min(left, 5), start_demo))
            expect_whole(run);
}

TEST_F(ended_live_command, a_signal_that_ends_it_closes_the_log) {
    for (const int signal : {SIGTERM, SIGINT})
        for (const ended_run& run : runs_ended_by(signal, 2, start_demo)) {
            expect_whole(run);
            EXPECT_EQ(run.logged.size(), run.printed.size());
            EXPECT_EQ(run.status, 0); // a run without an end is ended so
        }
}

} // namespace

// The program as a user runs it from a shell, against virtual cars over real loopback TCP.
#include "car_library.h"
#include "command_line.h"
#include "commands.h"
#include "rows.h"
#include "shell_fixture.h"
#include "test_paths.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QTcpServer>
#include <QTcpSocket>

#include <gmock/gmock.h>

namespace {

TEST_F(shell, arguments_that_make_no_sense_end_with_2_and_a_reason) {
    for (const table_row& row : read_rows(test_data("refused.rows"))) {
        const auto& arguments = row.fields;
        const outcome result = run(arguments);
        EXPECT_EQ(result.status, 2) << row.place << ": " << result.err;
        EXPECT_NE(result.err.find("kestrom: "), std::string::npos) << result.err;
        EXPECT_THAT(result.err, testing::EndsWith(" --help'.\n")) << "or what lists the cars";
        EXPECT_EQ(result.out, "");
    }
}

TEST_F(shell, options_are_read_with_and_without_the_equals_sign) {
    const std::vector<std::string> words = {
        "--adapter=[::1]:35000", "--timeout", "2.5", "send", "AT I", "--json", "01 00"};
    const auto [asked, error] = parse_command_line(words);
    EXPECT_EQ(error, "");
    EXPECT_EQ(asked.adapter_host, "::1");
    EXPECT_EQ(asked.adapter_port, "35000");
    EXPECT_EQ(asked.timeout_seconds, 2.5);
    EXPECT_EQ(asked.arguments, (std::vector<std::string>{"AT I", "01 00"}));
    EXPECT_TRUE(asked.json);
    EXPECT_EQ(parse_command_line(std::vector<std::string>{"live", "--pids=0d"}).asked.pids,
              std::vector<std::string>{"0D"});
}

TEST_F(shell, an_adapter_that_is_a_path_is_a_serial_port) {
    const struct {
        const char *text, *path;
        int speed;
    } rows[] = {
        {"/dev/ttyUSB0", "/dev/ttyUSB0", 0},
        {"/dev/ttyUSB0:115200", "/dev/ttyUSB0", 115200},
        {"/dev/serial/by-path/pci-0:00:14.0:9600", "/dev/serial/by-path/pci-0:00:14.0", 9600},
        {"/dev/serial/by-path/pci-0:00:14.0-usb-0:1:1.0-port0",
         "/dev/serial/by-path/pci-0:00:14.0-usb-0:1:1.0-port0", 0}};
    for (const auto& row : rows) {
        const auto [asked, error] =
            parse_command_line(std::vector<std::string>{"--adapter", row.text, "codes"});
        EXPECT_EQ(error, "");
        EXPECT_EQ(asked.serial_port, row.path);
        EXPECT_EQ(asked.serial_speed, row.speed);
    }
    const outcome result = run({"--adapter", "/dev/no-such-port", "codes"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, testing::HasSubstr("/dev/no-such-port is not there"));
    EXPECT_EQ(run({"--adapter", "/dev/ttyUSB0:9", "codes"}).status, 2);
    EXPECT_TRUE(QDir(home.path()).isEmpty()) << "nothing of the user's is touched";
}

TEST_F(shell, the_built_in_car_is_read_and_nothing_of_the_users_is_touched) {
    const outcome result = run({"--demo", "codes", "--json"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.text("lamp"), "ON");
    EXPECT_EQ(result.json().value(QLatin1String("count")).toInt(), 3);
    EXPECT_EQ(result.json().value(QLatin1String("codes")).toArray().size(), 3);
    EXPECT_EQ(result.json().value(QLatin1String("readiness")).toArray().size(), 11);
    EXPECT_EQ(result.text("status"), "Codes read!. Scroll for full description");
    EXPECT_EQ(result.json().value(QLatin1String("messages")).toArray().size(), 0);
    EXPECT_EQ(result.json().value(QLatin1String("statuses")).toArray().first().toString(),
              QLatin1String("Starting Read Codes"));
    EXPECT_EQ(QDir(home.path()).entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot).size(),
              0);
}

TEST_F(shell, a_count_that_differs_from_the_codes_is_told) {
    const outcome result = run({"--demo=three_units", "codes"});
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, testing::HasSubstr("Codes read...but different no of codes recvd\n"));
}

TEST_F(shell, codes_that_were_not_read_are_neither_none_nor_0) {
    car silent = load_car("only_codes");
    silent.units[0].answers = {{"0101", {}}, {"03", {}}};
    tcp_adapter_server server(silent, quick());
    ASSERT_TRUE(server.listen("127.0.0.1", 0));
    EXPECT_THAT(run({"--adapter", address(server), "codes"}).out,
                testing::HasSubstr("Trouble codes\n  not read whole\n"));
    const outcome told = run({"--adapter", address(server), "codes", "--json"});
    EXPECT_TRUE(told.json().value(QLatin1String("count")).isNull()) << told.out;
}

TEST_F(shell, a_bluetooth_adapter_named_once_leaves_the_settings_alone) {
    EXPECT_EQ(run({"--bluetooth", "00:1D:A5:68:98:8B", "codes"}).status, 1);
    EXPECT_TRUE(QDir(home.path()).isEmpty());
}

TEST_F(shell, clearing_clears_the_car) {
    tcp_adapter_server server(load_car("can11"), quick());
    ASSERT_TRUE(server.listen("127.0.0.1", 0));
    const outcome cleared = run({"--adapter", address(server), "clear", "--yes", "--json"});
    EXPECT_EQ(cleared.status, 0) << cleared.err;
    EXPECT_EQ(cleared.json().value(QLatin1String("messages")).toArray().last().toString(),
              QLatin1String("Codes cleared sucessfully!!"));
    EXPECT_EQ(cleared.err, "") << "--yes has answered the question; JSON tells the rest";
    EXPECT_EQ(run({"--demo", "clear", "--yes"}).out, "Codes cleared sucessfully!!\n");
    const outcome result = run({"--adapter", address(server), "codes", "--json"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.text("lamp"), "OFF");
    EXPECT_EQ(result.json().value(QLatin1String("codes")).toArray().size(), 0);
}

TEST_F(shell, sent_commands_print_their_raw_replies) {
    tcp_adapter_server server(load_car("can11"), quick());
    ASSERT_TRUE(server.listen("127.0.0.1", 0));
    const outcome result = run({"--adapter", address(server), "send", "AT E0", "AT I", "XYZ"});
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "AT E0\rOK\r\r>\nELM327 v1.5\r\r>\n?\r\r>\n");
}

TEST_F(shell, a_link_that_fails_ends_with_1_and_the_reason) {
    tcp_adapter_server stalls(load_car("can11"), [] {
        adapter_options options = quick();
        options.faults = fault_set({parse_fault("stall_after=0")});
        return options;
    }());
    ASSERT_TRUE(stalls.listen("127.0.0.1", 0));
    const struct {
        std::vector<std::string> arguments;
        const char* reason;
        int status = 1;
    } cases[] = {
        {{"--adapter", "127.0.0.1:1", "codes"}, "Couldn't connect...Please Check"},
        {{"--adapter", "127.0.0.1:1", "report"}, "Couldn't connect...Please Check"},
        {{"--adapter", "127.0.0.1:1", "clear", "--yes"}, "Couldn't connect...Please Check"},
        {{"--adapter", "127.0.0.1:1", "send", "AT I"}, "'AT I': Couldn't connect"},
        {{"--adapter", "no-such-host.invalid:35000", "codes"}, "Couldn't connect...Please Check"},
        {{"--adapter", address(stalls), "codes"}, "Cur op timed out... Please Check/retry"},
        {{"--adapter", address(stalls), "codes", "--timeout", "0.5"}, "the time limit has passed"},
        {{"--demo=no-such-car", "codes"}, "kestrom-virtual-car --list", 2},
        {{"--record", "/proc/t", "--demo", "codes"}, "cannot record to /proc/t", 2},
        {{"codes"}, "--bluetooth ADDRESS"}, // a first start
        {{"bluetooth-scan"}, "The Bluetooth service is not running"},
        {{"--bluetooth", "00-1d-a5-68-98-8b", "codes"}, "The Bluetooth service is not running"},
    };
    for (const auto& one : cases) {
        const outcome result = run(one.arguments);
        EXPECT_EQ(result.status, one.status) << one.reason;
        EXPECT_THAT(result.err, testing::HasSubstr(one.reason));
        EXPECT_THAT(result.err, testing::Not(testing::HasSubstr("XDG_RUNTIME_DIR")));
        EXPECT_EQ(result.err.rfind(one.reason), result.err.find(one.reason)) << "told twice";
    }
}

TEST_F(shell, a_flood_without_a_prompt_ends_the_command) {
    QTcpServer server;
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection,
                     [&] { server.nextPendingConnection()->write(QByteArray(200'000, 'x')); });
    const std::string where = "127.0.0.1:" + std::to_string(server.serverPort());
    const outcome result = run({"--adapter", where, "send", "AT I"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, testing::HasSubstr("no prompt within 64 KiB"));
}

TEST_F(shell, a_recording_is_made_beside_the_command_and_never_over_a_file) {
    const std::string talk = home.filePath(QStringLiteral("talk.jsonl")).toStdString();
    EXPECT_EQ(run({"--demo", "--record", talk, "send", "AT I"}).status, 0);
    const outcome refused = run({"--demo", "--record", talk, "send", "AT I"});
    EXPECT_EQ(refused.status, 2);
    EXPECT_THAT(refused.err, testing::EndsWith("kestrom: cannot record to " + talk +
                                               ": File exists; name another file\n"));
    QFile file(QString::fromStdString(talk));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.startsWith("{\"kestrom_recording\":1,")) << text.toStdString();
    EXPECT_TRUE(text.contains("\"sent\":\"AT I\\r\"}\n")) << text.toStdString();
    EXPECT_TRUE(text.endsWith("\"event\":\"closed\"}\n")) << text.toStdString();
}

TEST_F(shell, every_command_has_help_with_an_example) {
    for (const command_row& command : all_commands()) {
        const std::string name(command.name);
        const outcome told = run({name, "--help"});
        EXPECT_EQ(told.status, 0) << told.err;
        EXPECT_EQ(run({"help", name}).out, told.out);
        EXPECT_THAT(told.out, testing::HasSubstr("\n  kestrom "));
        EXPECT_THAT(told.out, testing::HasSubstr("Exit status"));
    }
}

TEST_F(shell, output_that_is_lost_fails_and_a_reader_that_has_gone_is_no_news) {
    for (const char* arguments : {"--help", "decode '41 0C 1A F8'", "--demo live --cycles 2"}) {
        const auto through = [&](const char* redirection) {
            QProcess sh;
            sh.start(
                QStringLiteral("bash"),
                {QStringLiteral("-c"),
                 QStringLiteral("exec 3>&1; { sleep 0.2; " KESTROM_PROGRAM " %1; echo $? >&3; } %2")
                     .arg(QLatin1String(arguments), QLatin1String(redirection))});
            EXPECT_TRUE(sh.waitForFinished());
            return sh.readAllStandardOutput().toStdString() +
                   sh.readAllStandardError().toStdString();
        };
        EXPECT_THAT(through("> /dev/full"),
                    testing::MatchesRegex("1\n(.*\n)?kestrom: the output could not be written\n"));
        EXPECT_THAT(through("> >(exec <&-)"),
                    testing::AllOf(testing::StartsWith("1\n"),
                                   testing::Not(testing::HasSubstr("kestrom: "))));
    }
}

TEST_F(shell, a_run_log_is_exported_and_charted_by_name_in_the_units_of_the_settings) {
    const QString folder = home.filePath(QStringLiteral("kestrom/loggies/"));
    QDir().mkpath(folder);
    const auto write = [](const QString& path, const char* text) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text);
    };
    const QString settings = home.filePath(QStringLiteral("metric.conf"));
    write(folder + QStringLiteral("run.gol"), "410D64\n");
    write(settings, "KS_metric_units=true\n");
    const outcome told = run({"export", "run.gol", "--settings", settings.toStdString()});
    const QString table = folder + QStringLiteral("run.csv");
    EXPECT_EQ(told.out, table.toStdString() + "\n") << told.err;
    QFile file(table);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "Vehicle Speed (kph)\n100.000000\n");
    EXPECT_EQ(run({"export", "run.gol"}).status, 1); // it is there already
    const std::string chart = home.filePath(QStringLiteral("run.png")).toStdString();
    EXPECT_EQ(run({"--settings", settings.toStdString(), "chart", "run.gol", "--pid", "0D",
                   "--dial", "-o", chart})
                  .out,
              "0D Vehicle Speed: 100.00  Km/h\n");
}

TEST_F(shell, a_picture_of_the_filled_screen_is_saved) {
    const QString picture = home.filePath(QStringLiteral("codes.png"));
    EXPECT_EQ(run({"--demo", "--screenshot", picture.toStdString(), "codes"}).status, 0);
    const QImage image(picture);
    EXPECT_EQ(image.size(), QSize(1100, 720));
    EXPECT_EQ(run({"--demo", "--screenshot", "/proc/kestrom.png", "--screen", "prefs"}).status, 1);
}

} // namespace

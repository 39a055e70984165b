#include "desk_fixture.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class export_command_test : public desk_test {
  protected:
    export_command_test() { std::filesystem::create_directories(path("data/loggies")); }

    int table(const words& arguments) { return run("export", arguments); }
    void write_log(const std::string& name) const { std::ofstream(path(name)) << "410C0FA0\n"; }
};

TEST_F(export_command_test, tables_stand_beside_their_log_wherever_it_is) {
    write_log("run.gol.d.gol");
    write_log("data/loggies/run.gol");
    write_log("data/loggies/fuel.txt");
    const struct {
        std::vector<std::string> arguments;
        std::string output;
    } cases[] = {{{path("run.gol.d.gol")}, path("run.csv.d.csv")},
                 {{"run.gol"}, path("data/loggies/run.csv")},
                 {{"--txt", "run.gol"}, path("data/loggies/run.txt")},
                 {{"fuel.txt", "--txt"}, path("data/loggies/fuel.txt.export.txt")}};
    for (const auto& c : cases) {
        EXPECT_EQ(table(c.arguments), 0) << err.str();
        EXPECT_EQ(out.str(), c.output + "\n");
        std::ostringstream table;
        table << std::ifstream(c.output).rdbuf();
        EXPECT_EQ(table.str(), "Engine Speed (RPM)\n1000.000000\n");
        EXPECT_EQ(err.str(), "");
    }
    EXPECT_EQ(table({"--time", path("run.gol.d.gol")}), 1) << "there already";
    std::filesystem::remove(path("run.csv.d.csv"));
    EXPECT_EQ(table({"--time", path("run.gol.d.gol")}), 0);
    EXPECT_THAT(err.str(), HasSubstr("run.gol.d.gol.times: not there"));
}

TEST_F(export_command_test, refusals_have_their_reason_and_status) {
    write_log("data/loggies/run.gol");
    std::ofstream(path("empty.gol"));
    std::ofstream(path("users.txt")) << "root:x:0:0:root,,,:/root:/bin/sh\nError? 4100.0,see\n";
    EXPECT_EQ(table({"run.gol", "--json"}), 0);
    const QByteArray text = QByteArray::fromStdString(out.str());
    const QJsonObject told = QJsonDocument::fromJson(text).object();
    EXPECT_EQ(told.value(QStringLiteral("export")).toString().toStdString(),
              path("data/loggies/run.csv"));
    EXPECT_EQ(told.value(QStringLiteral("rows")).toInt(), 1);
    const struct {
        std::vector<std::string> arguments;
        int status;
        std::string complaint;
    } cases[] = {{{"run.gol"}, 1, "run.csv)already exists.. Bailing out"},
                 {{"none.gol"}, 1, "none.gol: No such file"},
                 {{path("none.gol"), "--json"}, 1, "none.gol: No such file"},
                 {{path("empty.gol")}, 1, "empty.gol: no samples"},
                 {{path("users.txt")}, 1, "users.txt:1: not a run log"}};
    for (const auto& c : cases) {
        EXPECT_EQ(table(c.arguments), c.status);
        EXPECT_THAT(err.str(), HasSubstr(c.complaint));
    }
    EXPECT_FALSE(std::filesystem::exists(path("users.txt.csv")));
    // Damage, silence and other runs make no other file of it.
    for (const char* log :
         {"~\n", "4\x01.0C\nNO DATA\n", "zz\n41 0C 1\n", "41E50017\r\n", "CAN ERROR"}) {
        std::filesystem::remove(path("odd.csv"));
        std::ofstream(path("odd.gol")) << log;
        EXPECT_EQ(table({path("odd.gol")}), 0) << err.str();
    }
}

} // namespace

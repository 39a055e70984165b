#include "comma_locale.h"
#include "decode_fixture.h"
#include "log_export.h"
#include "text.h"

#include <charconv>
#include <cmath>
#include <gmock/gmock.h>
#include <sstream>
#include <sys/stat.h>

using testing::HasSubstr;

namespace {

class export_test : public decode_test {
  protected:
    export_test() { std::filesystem::create_directories(logs.log_folder()); }

    std::string path(const std::string& name) const { return logs.log_folder() + "/" + name; }
    void write_log(const std::string& name, std::string_view text) const {
        std::ofstream(path(name), std::ios::binary) << text;
    }
    std::string text_of(const std::string& name) const {
        std::ostringstream text;
        text << std::ifstream(path(name), std::ios::binary).rdbuf();
        return text.str();
    }
    std::ptrdiff_t files() const {
        return std::distance(std::filesystem::directory_iterator(logs.log_folder()), {});
    }
    bool there(const std::string& name) const { return std::filesystem::exists(path(name)); }

    // The tables that the program ships with.
    bundle shipped{":/kestrom", "en"};
    mac_toolies logs{{&shipped, &settings, &boxes, &notifications, root() + "/data"}};
};

TEST_F(export_test, one_line_yields_a_header_and_a_row) {
    write_log("run.gol", "410C1AF8,410D64,41 05 7B\n");
    use_metric(true);
    EXPECT_TRUE(logs.export_to_CSV("run.gol", false));
    EXPECT_EQ(text_of("run.csv"),
              "Engine Speed (RPM),Vehicle Speed (kph),Engine Coolant Temperature (° C)\n"
              "1726.000000,100.000000,83.000000\n");
    // Names and units are those of the moment of the export.
    use_metric(false);
    EXPECT_TRUE(logs.export_to_CSV("run.gol", true));
    EXPECT_EQ(text_of("run.txt"),
              "Engine Speed (RPM),Vehicle Speed (mph),Engine Coolant Temperature (° F)\n"
              "1726.000000,62.500000,181.400000\n");
}

TEST_F(export_test, an_export_is_never_overwritten) {
    write_log("run.gol", "410C1AF8\n");
    write_log("run.csv", "mine");
    EXPECT_FALSE(logs.export_to_CSV("run.gol", false));
    ASSERT_EQ(boxes.shown.size(), 1U);
    EXPECT_EQ(boxes.shown[0].message, "File (" + path("run.csv") + ")already exists.. Bailing out");
    EXPECT_EQ(text_of("run.csv"), "mine");
    EXPECT_TRUE(logs.export_to_CSV("run.gol", true)); // under another name
}

TEST_F(export_test, what_cannot_be_exported_is_refused_and_leaves_no_file) {
    write_log("empty.gol", "");
    std::filesystem::create_directory(path("folder.gol"));
    ASSERT_EQ(mkfifo(path("pipe.gol").c_str(), 0600), 0);
    write_log("run.gol", "410C1AF8\n");
    const struct {
        std::string log, output;
        export_result result;
        std::string error;
    } cases[] = {
        {"none.gol", "out.csv", export_result::unreadable, "none.gol: No such file"},
        {"folder.gol", "out.csv", export_result::unreadable, "folder.gol: not a file"},
        {"pipe.gol", "out.csv", export_result::unreadable, "pipe.gol: not a file"},
        {"empty.gol", "out.csv", export_result::empty, "empty.gol: no samples"},
        {"run.gol", "none/out.csv", export_result::unwritable, "none/out.csv: No such file"},
    };
    for (const auto& c : cases) {
        const export_outcome outcome = export_log(logs, path(c.log), path(c.output));
        EXPECT_EQ(outcome.result, c.result) << c.log;
        EXPECT_THAT(outcome.error, HasSubstr(c.error));
        EXPECT_FALSE(there(c.output));
    }
    {
        log_export left_alone(logs);
        EXPECT_EQ(left_alone.start(path("run.gol"), path("out.csv")), export_result::working);
        left_alone.step();
        left_alone.step();
        EXPECT_FALSE(there("out.csv")) << "it is not whole";
        EXPECT_EQ(files(), 5);
    }
    EXPECT_EQ(files(), 4) << "a part of it is left behind";
}

// The named operation leaves what it always left.
TEST_F(export_test, a_log_without_lines_has_an_empty_export) {
    write_log("empty.gol", "");
    EXPECT_FALSE(logs.export_to_CSV("empty.gol", false));
    EXPECT_FALSE(logs.export_to_CSV("none.gol", false));
    EXPECT_TRUE(there("empty.csv") && text_of("empty.csv").empty());
    EXPECT_TRUE(there("none.csv") && text_of("none.csv").empty());
    EXPECT_TRUE(boxes.shown.empty());
}

// Reads the log with arithmetic of its own (SAE J1979) and compares: a mistake that the toolkit
// makes in every place alike shows here.
TEST_F(export_test, a_long_export_agrees_with_an_independent_reading_of_the_log) {
    const comma_locale foreign;
    std::string log;
    for (unsigned i = 0; i < 20000; ++i) {
        char line[80];
        std::snprintf(line, sizeof line, "410C%04X,410D%02X,4111%02X,%s\n", i * 7 % 0x10000,
                      i % 256, i * 3 % 256,
                      i % 97 == 0 ? "~"
                      : i % 2     ? "410500"
                                  : "4105FF");
        log += line;
    }
    write_log("long.gol", log);
    use_metric(true);
    double told = -1;
    const export_outcome outcome =
        export_log(logs, path("long.gol"), path("long.csv"), {}, [&](double part) {
            EXPECT_GE(part, told);
            told = part;
            return true;
        });
    EXPECT_EQ(outcome.result, export_result::exported) << outcome.error;
    EXPECT_EQ(outcome.rows, 20000U);
    EXPECT_EQ(told, 1);

    std::istringstream lines(log), rows(text_of("long.csv"));
    std::string line, row;
    ASSERT_TRUE(std::getline(rows, row)); // the header
    while (std::getline(lines, line)) {
        ASSERT_TRUE(std::getline(rows, row));
        const auto byte = [&](std::size_t at) {
            return std::stoi(line.substr(at, 2), nullptr, 16);
        };
        // Figures stand where lines have them: 410CAABB,410DAA,4111AA,4105AA
        const double expected[] = {(byte(4) * 256 + byte(6)) / 4.0, 1.0 * byte(13),
                                   byte(20) / 255.0 * 100, line[23] == '~' ? NAN : byte(27) - 40.0};
        const auto fields = split(row, ",");
        ASSERT_EQ(fields.size(), std::size(expected)) << row;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            double exported = NAN;
            std::from_chars(fields[i].data(), fields[i].data() + fields[i].size(), exported);
            // Displays round to hundredths.
            ASSERT_TRUE(std::isnan(expected[i]) ? std::isnan(exported)
                                                : std::abs(exported - expected[i]) < 0.0051)
                << line << " became " << row;
        }
    }
    EXPECT_FALSE(std::getline(rows, row));
}

} // namespace

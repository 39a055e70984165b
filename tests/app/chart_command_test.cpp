#include "desk_fixture.h"

#include <QImage>

#include <fstream>
#include <gmock/gmock.h>

using testing::HasSubstr;

namespace {

class chart_command_test : public desk_test {
  protected:
    int chart(std::string_view log, std::vector<std::string> arguments) {
        std::ofstream(path("run.gol"), std::ios::binary) << log;
        std::ofstream times(path("run.gol.times"));
        for (std::size_t i = 0; i < log.size(); ++i)
            times << 500 + i * 1000 << '\n';
        times.close();
        arguments.insert(arguments.begin(), path("run.gol"));
        return run("chart", arguments);
    }
    QImage picture() const { return QImage(QString::fromStdString(path("out.png"))); }
};

constexpr std::string_view LOG =
    "410C0FA0,410D64\n410C1F40,410D32\n410C2EE0,~\r\n410C0FA0,410D64\n";

TEST_F(chart_command_test, prints_the_axis_limits_and_draws_at_the_scale) {
    EXPECT_EQ(chart(LOG, {"--pid", "0C", "-o", path("out.png")}), 0);
    EXPECT_EQ(out.str(), "0C Engine Speed: 0.00 to 4000.00 RPM\nTime: 0.500 to 3.500 s\n");
    const QImage timed = picture();
    std::ofstream(path("run.gol.times")) << "500\n";
    EXPECT_EQ(run({"chart", path("run.gol"), "--pid", "0C", "-o", path("out.png")}), 0);
    EXPECT_THAT(err.str(), HasSubstr("run.gol.times: times of 1 of 4 rounds"));
    EXPECT_NE(picture(), timed);
    EXPECT_EQ(picture().size(), QSize(420, 230));
    EXPECT_EQ(chart(LOG, {"--pid", "d", "--pid=0C", "--scale", "2", "-o", path("out.png")}), 0);
    EXPECT_THAT(out.str(), HasSubstr("0D Vehicle Speed: 20.00 to 70.00 mph\n"));
    EXPECT_EQ(picture().size(), QSize(840, 460));
}

TEST_F(chart_command_test, dial_shows_the_last_value) {
    EXPECT_EQ(chart(LOG, {"--dial", "--pid", "0D", "-o", path("out.png")}), 0);
    EXPECT_EQ(out.str(), "0D Vehicle Speed: 62.50 mph\n");
    EXPECT_EQ(picture().size(), QSize(364, 286));
    const QImage lit = picture();
    // The last reply was no answer: the needle stays, greyed. Without any there is none.
    EXPECT_EQ(
        chart(std::string(LOG) + "410C0FA0,~\n", {"--dial", "--pid", "0D", "-o", path("out.png")}),
        0);
    EXPECT_NE(picture(), lit);
}

TEST_F(chart_command_test, a_log_of_any_bytes_is_charted_or_refused_with_its_name_and_line) {
    const struct {
        std::string log;
        std::string complaint; // empty: charted
    } cases[] = {
        {"410C0FA0", ""},
        {std::string("410C0FA0\n\0\xff\xfe>\x01\n410C1F40\n", 24), ""},
        {"~\n410C0FA0\n" + std::string(100000, 'F') + "\n", ""},
        {"410C0FA0\n410C0FA0,410D64\n", "run.gol:2: 2 replies where line 1 has 1"},
        {"410C0FA0,~\n410C0FA0,~\n\n", "run.gol:3: 1 replies where line 1 has 2"},
        {'~' + std::string(100000, ','), "run.gol:1: more replies than there are parameters"},
        {"", "run.gol: no samples"},
        {"root:x:0:0:root:/root:/bin/sh\n", "run.gol:1: not a run log"},
        {"NODATA\n41\r0C0FA0\n", "run.gol: no replies for parameter 0C"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(chart(c.log, {"--pid", "0C", "-o", path("out.png")}),
                  c.complaint.empty() ? 0 : 1);
        EXPECT_THAT(err.str(), HasSubstr(c.complaint)) << c.log.substr(0, 40);
        EXPECT_EQ(err.str().empty(), c.complaint.empty()) << err.str();
    }
}

TEST_F(chart_command_test, files_that_cannot_be_read_or_written_end_with_1) {
    const std::string picture_path = path("out.png");
    EXPECT_EQ(run({"chart", path("none.gol"), "--pid", "0C", "-o", picture_path}), 1);
    EXPECT_THAT(err.str(), HasSubstr("none.gol"));
    EXPECT_EQ(chart(LOG, {"--pid", "0C", "-o", path("no/such/folder.png")}), 1);
    EXPECT_THAT(err.str(), HasSubstr("folder.png"));
}

} // namespace

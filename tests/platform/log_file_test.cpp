#include "full_disk.h"
#include "log_file.h"

#include <QTemporaryDir>

#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class log_file_test : public testing::Test {
  protected:
    std::string path(const char* name = "run.gol") const {
        return folder_.filePath(QString::fromUtf8(name)).toStdString();
    }
    static std::string text_of(const std::string& path) {
        std::ostringstream text;
        text << std::ifstream(path, std::ios::binary).rdbuf();
        return text.str();
    }

  private:
    QTemporaryDir folder_;
};

TEST_F(log_file_test, a_new_file_replaces_the_old_one_or_refuses_to) {
    log_file log;
    ASSERT_EQ(log.create(path()), std::nullopt);
    EXPECT_EQ(log.append_line("first run\n"), std::nullopt);
    EXPECT_EQ(text_of(path()), "first run\n"); // at once, not when it is closed
    ASSERT_EQ(log.create(path()), std::nullopt);
    EXPECT_EQ(text_of(path()), "");
    EXPECT_EQ(log.append_line("second\n"), std::nullopt);
    EXPECT_EQ(log.close(), std::nullopt);
    EXPECT_NE(log.create(path(), log_file::existing::refuse), std::nullopt);
    EXPECT_FALSE(log.is_open());
    EXPECT_EQ(text_of(path()), "second\n");
}

TEST_F(log_file_test, a_file_that_cannot_be_made_says_why_and_swallows_its_lines) {
    log_file log;
    for (const std::string& bad : {path("none/run.gol"), path("."), std::string()}) {
        EXPECT_NE(log.create(bad).value_or("").size(), 0U) << bad;
        EXPECT_FALSE(log.is_open());
        EXPECT_EQ(log.append_line("line\n"), std::nullopt);
    }
}

TEST_F(log_file_test, no_half_line_stays_when_the_disk_is_full) {
    log_file log;
    ASSERT_EQ(log.create(path()), std::nullopt);
    const full_disk limit(25);
    EXPECT_EQ(log.append_line("ten bytes\n"), std::nullopt);
    EXPECT_EQ(log.append_line("ten bytes\n"), std::nullopt);
    EXPECT_EQ(log.append_line("ten bytes\n"), "File too large"); // five of them fit
    EXPECT_EQ(text_of(path()), "ten bytes\nten bytes\n");
    EXPECT_FALSE(log.is_open());
    EXPECT_EQ(log.append_line("x\n"), std::nullopt); // one that would fit goes nowhere
    EXPECT_EQ(text_of(path()), "ten bytes\nten bytes\n");
    ASSERT_EQ(log.create("/dev/full"), std::nullopt);
    EXPECT_EQ(log.append_line("line\n"), "No space left on device");
}

TEST_F(log_file_test, a_file_that_is_removed_meanwhile_takes_no_more_lines) {
    log_file log;
    ASSERT_EQ(log.create(path()), std::nullopt);
    ASSERT_EQ(std::remove(path().c_str()), 0);
    EXPECT_EQ(log.append_line("line\n"), "No such file or directory");
    EXPECT_FALSE(log.is_open());
}

// Every line that was announced is in the file, and nothing but whole lines.
TEST_F(log_file_test, lines_survive_a_kill_of_the_process) {
    for (int round = 0; round < 20; ++round) {
        int announced[2];
        ASSERT_EQ(pipe(announced), 0);
        const pid_t child = fork();
        if (child == 0) {
            log_file log;
            log.create(path());
            for (int i = 0;; ++i) {
                log.append_line("410C0FA0,410D64," + std::to_string(i) + "\n");
                if (write(announced[1], &i, sizeof i) != sizeof i)
                    _exit(1);
            }
        }
        close(announced[1]);
        int last = -1;
        for (int i = 0; i < 1 + round * 7; ++i)
            ASSERT_EQ(read(announced[0], &last, sizeof last), static_cast<ssize_t>(sizeof last));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        while (read(announced[0], &last, sizeof last) == static_cast<ssize_t>(sizeof last)) {
        }
        close(announced[0]);
        std::istringstream lines(text_of(path()));
        int count = 0;
        for (std::string line; std::getline(lines, line); ++count)
            ASSERT_EQ(line, "410C0FA0,410D64," + std::to_string(count));
        EXPECT_GT(count, last);
        EXPECT_THAT(text_of(path()), testing::EndsWith("\n"));
    }
}

} // namespace

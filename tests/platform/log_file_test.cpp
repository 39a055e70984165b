#include "full_disk.h"
#include "log_file.h"

#include <QTemporaryDir>

#include <fstream>
#include <gtest/gtest.h>
#include <sstream>

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

TEST_F(log_file_test, an_empty_file_goes_with_its_log_but_not_what_stands_there_instead) {
    for (const bool replaced : {false, true}) {
        log_file log;
        ASSERT_EQ(log.create(path()), std::nullopt);
        log.remove_when_empty();
        if (replaced) {
            std::remove(path().c_str());
            std::ofstream(path()) << "mine";
        }
        log.close();
        EXPECT_EQ(std::ifstream(path()).is_open(), replaced);
    }
}

} // namespace

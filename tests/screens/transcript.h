// A conversation of the program with its user and its adapter, as told in data/: what each verb
// there does or expects stands in transcript_link.cpp and transcript_screen.cpp.
#pragma once

#include "app_harness.h"
#include "rows.h"

#include <gtest/gtest.h>
#include <map>
#include <optional>
#include <string>
#include <vector>

class transcript;
using transcript_verbs = std::map<std::string, void (*)(transcript&, const std::string&)>;
extern const transcript_verbs LINK_VERBS, SCREEN_VERBS;

class transcript {
  public:
    // From the heading of that name on; as far as `last_line` if there is one.
    void run_file(const std::string& file, const std::string& heading,
                  const std::string& last_line);
    // Escapes are those of rows.h, and "@KEY" is the text of the strings table.
    std::string told(const std::string& text) const;
    // The application anew, after a look at what the one before has left.
    void start(const std::function<void(user_defaults&)>& prepare);
    void expect_nothing_left();

    std::optional<app_harness> app;
    std::size_t alerts_seen = 0, statuses_seen = 0;
    int beeps_heard = 0;
    stream_pair::event_handler old_wire; // of a connection that "remember" has kept
    rfcomm_channel_delegate old_channel;

  private:
    void run_line(const std::string& line);
};

// The first words of a line, and what follows them as the last.
std::vector<std::string> split(const std::string& text, std::size_t words);
// What stands between " / ".
std::vector<std::string> parts(const std::string& text);

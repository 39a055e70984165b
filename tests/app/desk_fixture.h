// A command that talks to no car, from its words to its exit status.
#pragma once

#include "bundle.h"
#include "commands.h"
#include "mac_toolies.h"
#include "user_defaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

class desk_test : public testing::Test {
  protected:
    using words = std::vector<std::string>;

    int run(const words& arguments) {
        out.str({});
        err.str({});
        const parsed_command_line read = parse_command_line(arguments);
        if (read.error.empty())
            return find_command(read.asked.command)
                ->run({read.asked, toolies_, resources_, settings_, out, err});
        err << complaint_about(read);
        return 2;
    }
    int run(const std::string& command, words arguments) {
        arguments.insert(arguments.begin(), command);
        return run(arguments);
    }
    std::string path(const std::string& name) const {
        return folder_.filePath(QString::fromStdString(name)).toStdString();
    }

    std::ostringstream out, err;

  private:
    QTemporaryDir folder_;
    bundle resources_{":/kestrom", "en"};
    user_defaults settings_{path("settings.conf")};
    mac_toolies toolies_{{&resources_, &settings_, nullptr, nullptr, path("data")}};
};

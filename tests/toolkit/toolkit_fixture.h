// A toolkit over a resource folder of the test's own, with recorded alerts and notifications.
#pragma once

#include "bundle.h"
#include "mac_toolies.h"
#include "notification_center.h"
#include "qt_warnings.h"
#include "scripted_alerts.h"
#include "virtual_run_loop.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

class toolkit_test : public testing::Test {
  protected:
    void write_table(const std::string& name, std::string_view text) {
        const std::filesystem::path tables = root() + "/tables";
        std::filesystem::create_directories(tables);
        std::ofstream(tables / (name + ".txt"), std::ios::binary) << text;
    }
    std::string root() const { return folder_.path().toStdString(); }

  private:
    struct without_strings {
        without_strings() { expect_warning("no strings table"); }
    } without_strings_;
    QTemporaryDir folder_;

  protected:
    virtual_run_loop loop;
    scripted_alerts boxes{loop};
    notification_center notifications;
    bundle resources{root(), "en"};
    mac_toolies toolies{{&resources, nullptr, &boxes, &notifications}};
};

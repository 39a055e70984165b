// The whole application without a network and without real time: delegate and screens over a
// virtual clock, a scripted stream pair, scripted alerts and a temporary settings file.
#pragma once

#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "mac_toolies.h"
#include "screen_factories.h"
#include "scripted_alerts.h"
#include "scripted_serial_port.h"
#include "scripted_stream_pair.h"
#include "user_defaults.h"
#include "virtual_run_loop.h"

#include <QAbstractButton>
#include <QTemporaryDir>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class app_harness {
  public:
    explicit app_harness(const std::function<void(user_defaults&)>& prepare = use_wifi,
                         const std::string& language = "en_GB")
        : resources(":/kestrom", language),
          defaults(folder.filePath(QStringLiteral("settings.conf")).toStdString()) {
        reset_global_vars();
        prepare(defaults);
        mac_toolies::initialize({&resources, &defaults, &messages, &notifications,
                                 folder.filePath(QStringLiteral("data")).toStdString()});
        delegate = std::make_unique<Ks_lite_delegate>(
            app_doors{loop, messages, defaults, resources, notifications, scripted_streams(false),
                      bluetooth, scripted_streams(true)},
            all_screens());
        delegate->status_shown = [this](const std::string& text) { statuses.push_back(text); };
    }

    static void use_wifi(user_defaults& store) {
        store.set_integer(KS_INTERFACE_KEY, KS_USE_WIFI);
        store.set_string(WIFI_IP_KEY, "10.0.0.9");
        store.set_string(WIFI_PORT_KEY, "35000");
        store.set_string_array(PIDS_ARRAY_KEY, {"0D", "11", "0C", "05"});
    }
    static void first_start(user_defaults&) {} // Bluetooth

    scripted_stream_pair::wire& wire() { return *wires.back(); }

    stream_pair_factory scripted_streams(bool serial) {
        return [this, serial](const std::string& host, long port) -> std::unique_ptr<stream_pair> {
            wires.push_back(std::make_shared<scripted_stream_pair::wire>());
            wires.back()->host = host;
            wires.back()->port = port;
            wires.back()->serial = serial;
            return std::make_unique<scripted_stream_pair>(loop, wires.back());
        };
    }

    // The connection comes up; one second later the link starts the screen's work.
    void connect() {
        scripted_stream_pair::raise(wire(), loop, STREAM_OPEN_COMPLETED, stream_side::input);
        scripted_stream_pair::raise(wire(), loop, STREAM_OPEN_COMPLETED, stream_side::output);
        loop.advance(std::chrono::seconds(1));
    }
    void receive(const std::string& bytes) {
        wire().incoming += bytes;
        scripted_stream_pair::raise(wire(), loop, STREAM_BYTES_AVAILABLE);
        loop.settle();
    }
    void fail(const std::string& why) {
        wire().error = why;
        scripted_stream_pair::raise(wire(), loop, STREAM_ERROR);
        loop.settle();
    }
    // The next command sent, or "" when there is none.
    std::string sent() {
        if (wires.empty() || wire().written.empty())
            return {};
        const std::string command = wire().written.front();
        wire().written.pop_front();
        return command;
    }

    template <class widget = QWidget>
    widget* find(const char* name) {
        QWidget* root = delegate->current_screen()->view();
        return root->findChild<widget*>(QLatin1String(name));
    }
    void press(const char* name) { find<QAbstractButton>(name)->click(); }
    std::string last_status() const { return statuses.empty() ? std::string() : statuses.back(); }

    QTemporaryDir folder;
    bundle resources;
    virtual_run_loop loop;
    scripted_alerts messages{loop};
    user_defaults defaults;
    notification_center notifications;
    scripted_serial_port bluetooth{loop};
    std::vector<std::shared_ptr<scripted_stream_pair::wire>> wires;
    std::vector<std::string> statuses;
    std::unique_ptr<Ks_lite_delegate> delegate;
};

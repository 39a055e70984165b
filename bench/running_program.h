// The whole program in its window, running a run log against a server, on the real clock.
#pragma once

#include "actions.h"
#include "alerts.h"
#include "answering_server.h"
#include "bluetooth_door.h"
#include "bundle.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "main_window.h"
#include "qt_run_loop.h"
#include "screen_factories.h"
#include "serial_port_profile.h"
#include "tcp_stream_pair.h"
#include "thumbnail_strip.h"
#include "user_defaults.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <string>
#include <vector>

class no_alerts final : public alerts {
  public:
    using alerts::alerts;
    void beep() override {}

  protected:
    int run_modal(const alert_request& request) override {
        std::fprintf(stderr, "%s\n", request.message.c_str());
        return 0;
    }
};

class running_program {
  public:
    enum class shows { one_curve, two_curves_and_dials };
    static std::vector<std::string> four() { return {"0D", "11", "0C", "05"}; }
    // `fast`: without a limit on requests. `ready`: whether measuring can start.
    explicit running_program(
        int port, std::size_t rows_before = 0, shows what = shows::two_curves_and_dials,
        const std::vector<std::string>& pids = four(), bool fast = false,
        const std::function<bool(actions&)>& ready = [](actions& s) { return s.cycles() >= 10; })
        : defaults_(folder_.filePath(QStringLiteral("settings.conf")).toStdString()) {
        reset_global_vars();
        defaults_.set_integer(KS_INTERFACE_KEY, KS_USE_WIFI);
        defaults_.set_string(WIFI_IP_KEY, "127.0.0.1");
        defaults_.set_string(WIFI_PORT_KEY, std::to_string(port));
        defaults_.set_boolean(KS_METRIC_UNITS_KEY, true);
        defaults_.set_string_array(PIDS_ARRAY_KEY, pids);
        defaults_.set_boolean(FAST_KEY, fast);
        defaults_.set_integer("fast_requests_a_second", -1);
        mac_toolies::initialize({&resources_, &defaults_, &alerts_, &notifications_});
        delegate_ = std::make_unique<Ks_lite_delegate>(
            app_doors{loop_, alerts_, defaults_, resources_, notifications_,
                      [this](const std::string& host, long to) -> std::unique_ptr<stream_pair> {
                          return std::make_unique<tcp_stream_pair>(loop_, host, to);
                      },
                      *bluetooth_},
            all_screens());
        window_ = std::make_unique<main_window>(*delegate_);
        window_->show();
        delegate_->do_actions();
        if (what == shows::two_curves_and_dials)
            static_cast<thumbnail_strip*>(
                screen().view()->findChild<QWidget*>(QStringLiteral("thumbiesMtrx")))
                ->choose({0, 2});
        screen().runLogs();
        while (!ready(screen()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        fill(rows_before);
    }

    actions& screen() { return static_cast<actions&>(*delegate_->current_screen()); }

    double requests_a_second(std::chrono::milliseconds span) {
        const std::uint64_t before = screen().counted();
        QElapsedTimer timer;
        timer.start();
        while (!timer.hasExpired(span.count()))
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return static_cast<double>(screen().counted() - before) /
               (static_cast<double>(timer.nsecsElapsed()) * 1e-9);
    }

  private:
    // As if that many cycles had been sampled.
    void fill(std::size_t rows) {
        const mac_toolies& toolies = mac_toolies::sharedManager();
        sample_rows& samples = screen().samples();
        driving_car car;
        for (std::size_t row = 0; row < rows; ++row) {
            for (std::size_t i = 0; i < 4; ++i) {
                std::string reply = car.answer(screen().pids()[i]);
                std::erase(reply, ' ');
                samples.file(i, reply, toolies.translate_once(reply));
            }
            samples.append_fresh_row();
        }
    }

    QTemporaryDir folder_;
    qt_run_loop loop_;
    user_defaults defaults_;
    bundle resources_;
    notification_center notifications_;
    no_alerts alerts_{loop_};
    std::unique_ptr<serial_port_profile> bluetooth_ =
        make_bluetooth_door(loop_, alerts_, resources_, defaults_, false);
    std::unique_ptr<Ks_lite_delegate> delegate_;
    std::unique_ptr<main_window> window_;
};

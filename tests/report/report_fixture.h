// A virtual car on the bench, and the report that is read of it, on a virtual clock.
#pragma once

#include "bundle.h"
#include "car_library.h"
#include "car_reader.h"
#include "car_report.h"
#include "constantes.h"
#include "mac_toolies.h"
#include "user_defaults.h"
#include "virtual_adapter.h"
#include "virtual_run_loop.h"

#include <QTemporaryDir>

#include <memory>
#include <string>
#include <utility>
#include <vector>

// Straight to a virtual adapter, without a link. What a reply that came too late leaves behind is
// waited for.
class bench_door final : public adapter_door {
  public:
    bench_door(virtual_run_loop& loop, adapter& far_end) : loop_(loop), far_end_(far_end) {
        far_end_.connection_opened(loop_.now());
        ask("ATE0", run_loop::milliseconds(5000), [](const auto&) {});
        loop_.advance(run_loop::milliseconds(5000));
    }
    ~bench_door() override { loop_.cancel(pump_); }

    void ask(const std::string& command, run_loop::milliseconds bound, answered told) override {
        sent.push_back(command);
        told_ = std::move(told);
        reply_.clear();
        loop_.cancel(bound_);
        bound_ = loop_.after(bound, [this] { answer(std::nullopt); });
        far_end_.receive(command + "\r", loop_.now());
        pump();
    }
    void give_up() override {
        loop_.cancel(bound_);
        told_ = nullptr;
    }
    std::vector<std::string> sent;

  private:
    void answer(std::optional<std::string> reply) {
        loop_.cancel(bound_);
        if (const answered told = std::exchange(told_, nullptr))
            told(std::move(reply));
    }
    void pump() {
        loop_.cancel(pump_);
        for (auto due = far_end_.next_output(); due && *due <= loop_.now();
             due = far_end_.next_output())
            reply_ += far_end_.take_output(loop_.now());
        if (const auto due = far_end_.next_output())
            pump_ = loop_.after(*due - loop_.now(), [this] { pump(); });
        if (reply_.find('>') != std::string::npos)
            loop_.after(run_loop::milliseconds(0),
                        [this, whole = std::exchange(reply_, {})] { answer(whole); });
    }

    virtual_run_loop& loop_;
    adapter& far_end_;
    answered told_;
    std::string reply_;
    run_loop::timer_id bound_ = 0, pump_ = 0;
};

class car_on_the_bench {
  public:
    explicit car_on_the_bench(const std::string& name, adapter_options options = {})
        : car_on_the_bench(load_car(name), std::move(options)) {}
    explicit car_on_the_bench(car one, adapter_options options = {})
        : the_car(std::move(one)), adapter(the_car, std::move(options)), door(loop, adapter),
          reader(loop, door), store(folder.filePath(QStringLiteral("s.conf")).toStdString()),
          toolies({&resources, &store, nullptr, nullptr, folder.path().toStdString()}) {
        store.set_boolean(KS_METRIC_UNITS_KEY, true);
        conversation transcript;
        transcript.read_at = "2026-11-22T18:04:07+01:00";
        transcript.program = "Kestrom test";
        reader.start(std::move(transcript));
    }
    const car_report& read() {
        for (int i = 0; i < 400 && reader.running(); ++i)
            loop.advance(std::chrono::seconds(1));
        report = report_of(reader.transcript(), toolies);
        return report;
    }

    virtual_run_loop loop;
    car the_car;
    virtual_adapter adapter;
    bench_door door;
    car_reader reader;
    car_report report;

  private:
    QTemporaryDir folder;
    bundle resources;
    user_defaults store;

  public:
    mac_toolies toolies;
};

#include "session.h"

#include "actions.h"
#include "application.h"
#include "car_library.h"
#include "disk.h"
#include "promises.h"
#include "random_user.h"
#include "readCodes.h"

#include <QCoreApplication>
#include <QWidget>

#include <algorithm>

using std::chrono::seconds;

namespace {

constexpr int ACTS = 40;
constexpr seconds SPAN{60};
constexpr std::uint64_t VISIBLE_EVERY = 16; // sessions: drawing takes most of the time
constexpr QSize SMALL_SCREEN(640, 360);

const std::vector<car>& library() {
    static const std::vector<car> all = [] {
        std::vector<car> cars;
        for (const std::string& name : car_names())
            // An adapter with a short wait cuts off a slow unit, which a screen cannot detect.
            if (const car one = load_car(name);
                std::ranges::none_of(one.units, [](const auto& unit) { return unit.delay_ms > 0; }))
                cars.push_back(one);
        return cars;
    }();
    return all;
}

class session {
  public:
    session(std::uint64_t seed, const std::string& folder, event_trace& trace)
        : rng_(seed), folder_(folder), trace_(trace), disk_(folder), plan_(rng_.seed()),
          is_visible_(seed % VISIBLE_EVERY == 0), ends_abruptly_(seed % 2 == 0) {}

    void run() {
        write_settings();
        {
            application app(folder_, trace_, ledger_, plan_);
            promises kept(app);
            const adapter_options adapter = plan_.adapter();
            const bool fast_first = rng_.happens(10);
            begin(app, kept, fast_first ? adapter_options{} : adapter);
            random_user user(app, kept, rng_.seed());
            if (fast_first)
                meet_faults_at_full_speed(app, user, adapter.faults);
            for (int i = 0; i < ACTS && app.loop.now() < SPAN && !trace_.failed(); ++i) {
                user.act();
                if (is_visible_)
                    watch(app);
                kept.check_now();
                meet(app, kept);
            }
            stop_faults(app);
            if (!trace_.failed())
                kept.come_to_rest();
            const bool over_wifi = g_connect_with == KS_USE_WIFI;
            if (!trace_.failed() && over_wifi)
                read_healthy_car(app, kept, user);
            leave(app, kept);
            if (over_wifi || trace_.failed())
                return;
        }
        start_anew();
    }

  private:
    void write_settings() {
        user_defaults settings(folder_ + "/settings.conf");
        if (rng_.happens(5))
            return; // a first start
        settings.set_integer(KS_INTERFACE_KEY, rng_.happens(70) ? KS_USE_WIFI : KS_USE_BT);
        settings.set_string(WIFI_IP_KEY, "10.0.0.9");
        settings.set_string(WIFI_PORT_KEY, "35000");
        settings.set_boolean(KS_METRIC_UNITS_KEY, rng_.happens(50));
        settings.set_boolean(LOG_RUNS_KEY, rng_.happens(60));
        settings.set_boolean(REUSE_LAST_BT_KEY, rng_.happens(30));
        static const std::vector<std::vector<std::string>> LISTS{
            {"0D", "11", "0C", "05"}, {"0C"}, {"0C", "42", "1F", "03", "06"}, {}};
        settings.set_string_array(PIDS_ARRAY_KEY, rng_.one_of(LISTS));
        settings.synchronize();
    }

    void begin(application& app, promises& kept, adapter_options options) {
        ledger_.forget();
        app.far.plug_in(rng_.one_of(library()), std::move(options));
        app.start();
        kept.started();
    }

    void meet_faults_at_full_speed(application& app, random_user& user, const fault_set& faults) {
        const fault_plan trouble = plan_;
        plan_.stop();
        user.sample_fast();
        if (auto* const live = app.showing<actions>(ACTIONS_VIEW))
            trace_.note("!",
                        "faults begin at level " + std::to_string(live->fast_level().value_or(0)));
        plan_ = trouble;
        app.far.set_faults(faults);
    }

    void meet(application& app, promises& kept) {
        using enum fault_plan::incident;
        switch (plan_.next_incident()) {
        case none:
            break;
        case reset:
        case reset_with_banner:
            app.far.restart_adapter(rng_.happens(50));
            break;
        case hang_up:
            app.far.hang_up();
            break;
        case fall_silent:
            app.far.fall_silent();
            break;
        case chatter:
            app.far.chatter("STOPPED\r\r>");
            break;
        case flood:
            app.far.chatter(std::string(100'000, 'F'));
            break;
        case disk_full:
            disk_.fill();
            break;
        case folder_gone:
            disk_.remove_logs();
            kept.forget_logs();
            break;
        case folder_blocked:
            disk_.block_logs();
            kept.forget_logs();
            break;
        case disk_well:
            disk_.mend();
            break;
        case clock_jump:
            app.wall_clock += rng_.between(-90000, 90000);
            break;
        }
    }

    void stop_faults(application& app) {
        trace_.note("!", "faults stop");
        plan_.stop();
        disk_.mend();
        app.messages.while_open = [this](const alert_request& request) {
            trace_.note("alert", request.message);
        };
        app.messages.answers.clear();
    }

    void read_healthy_car(application& app, promises& kept, random_user& user) {
        app.far.plug_in(rng_.one_of(library()), healthy());
        user.change_port_and_back();
        read_and_compare(app, kept, user);
    }

    void start_anew() {
        application app(folder_, trace_, ledger_, plan_);
        promises kept(app);
        begin(app, kept, healthy());
        random_user user(app, kept, rng_.seed());
        stop_faults(app);
        app.bluetooth.while_choosing = [] {};
        if (g_connect_with == KS_USE_WIFI) // the last choice, saved at the end
            user.change_port_and_back();
        else
            app.delegate->do_read_codes();
        read_and_compare(app, kept, user);
        leave(app, kept);
    }

    static adapter_options healthy() {
        adapter_options options;
        options.latency = run_loop::milliseconds(20);
        return options;
    }

    void read_and_compare(application& app, promises& kept, random_user& user) {
        trace_.note("!", "a healthy car: " + app.far.the_car().name);
        const truth expected = truth_of(app.far.the_car());
        user.read_codes();
        auto* const screen = app.showing<readCodes>(READ_CODES_VIEW);
        for (int i = 0; i < 60 && (i < 5 || screen->task_running()) && !trace_.failed(); ++i)
            app.advance(seconds(1));
        kept.shows(expected);
        if (!trace_.failed())
            kept.answers_again();
    }

    // A visible screen draws: its pictures when due, the rest now and then.
    static void watch(application& app) {
        QWidget& view = *app.view();
        if (view.isVisible()) {
            view.grab();
            return;
        }
        view.resize(SMALL_SCREEN);
        view.show();
    }

    void leave(application& app, promises& kept) {
        if (!ends_abruptly_) {
            app.delegate->do_expert(); // the cheapest screen
            app.loop.settle();
            kept.nothing_outlives_its_screen();
        }
        app.delegate->applicationWillTerminate();
        kept.logs_are_complete(folder_);
        app.delegate.reset();
        QCoreApplication::removePostedEvents(nullptr);
        trace_.expect(app.far.open_pairs() == 0, "no socket outlives the program", "open");
    }

    rng rng_;
    std::string folder_;
    event_trace& trace_;
    wire_ledger ledger_;
    disk disk_;
    fault_plan plan_;
    bool is_visible_, ends_abruptly_;
};

} // namespace

session_result run_session(std::uint64_t seed, const std::string& folder, bool print) {
    event_trace trace(print, folder);
    session(seed, folder, trace).run();
    return {trace.promise(), trace.how(), trace.hash(), trace.last_lines()};
}

// The live-data screen: the user picks a kind of run, starts and stops it with one button, and
// watches the run's parameters as thumbnails, one large chart and up to two dials, while the
// sampling loop requests one after the other continuously.
//
// Files: actions: set-up, selection, start and stop; sampling_loop: requests and filing;
// run_logger: the log; live_runs: the differences between kinds of run; live_handshake: the
// handshake; live_view: the widgets; live_pictures: their contents. Pictures and status line are
// updated with the next paced frame.
#pragma once

#include "frame_pacer.h"
#include "live_handshake.h"
#include "live_pictures.h"
#include "live_runs.h"
#include "obd_screen.h"
#include "run_logger.h"
#include "sampling_loop.h"
#include "supported_scan.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class live_view;

class actions final : public obd_screen, private sampling_listener {
  public:
    explicit actions(Ks_lite_delegate& delegate);
    ~actions() override;

    QWidget* view() override;
    void set_status_msg(const std::string& message) override;
    void leave_cur_op_gracefully(const std::string& message) override;
    void link_lost() override;

    // Builds the same views again from the user's parameters.
    void initial_setup();
    // The start/stop button.
    void runLogs();
    // Selects a kind of run by its task number, as the run selector would.
    void choose_run(int task);
    void comboBoxSelectionDidChange(int index);
    void rework_gui_objects(int mode);
    // The selection of thumbnails has changed.
    void cellCicked();
    // v: 0 the last 20 rows, 1 all.
    void zoomSliderDidChange(double v);
    void clickIt();
    void show_next_sensors();
    bool isFlipped() const { return true; }

    // Asks the car, after the handshake if necessary, and always calls `ended`; not during a run.
    void ask_what_car_supports(std::function<void()> ended);
    // The car's last answer; nothing if it was not asked since the handshake, or did not answer.
    const std::optional<parameter_set>& car_parameters() const { return car_parameters_; }
    // Every request of the last scan was answered, even if with nothing.
    bool scan_completed() const { return scan_completed_; }

    bool running() const { return sampling_.running(); }
    // A run waits for the adapter or for the link to it.
    bool awaits_adapter() const {
        return running() &&
               (awaits_owed_reply() || sampling_.pausing() || KS_delegate.anything_outstanding());
    }
    const std::vector<std::string>& pids() const { return sampling_.pids(); }
    // Of the run: the answers since its first cycle began.
    std::uint64_t requests_answered() const { return sampling_.requests_answered(); }
    // What the rate is of: in a fast run what was answered with a value.
    std::uint64_t counted() const {
        return sampling_.fast_most() ? sampling_.values() : requests_answered();
    }
    std::uint64_t cycles() const { return sampling_.cycles(); }
    // See fast_sampler::level(); kept after the end of the run; nothing for a plain one.
    std::optional<int> fast_level() const { return fast_level_; }
    // The samples of the run; the last row is being filled.
    sample_rows& samples() { return sampling_.samples(); }
    // The log of the run; empty when there is none.
    const std::string& log_path() const { return log_.path(); }
    // Why this run is not, or no longer, logged.
    const std::string& log_failure() const { return log_failure_; }
    // Called when the first cycle of a run begins, before its first request.
    std::function<void()> sampling_begins;
    // Called with the values of a cycle, in the order of pids(), after its line is in the log.
    std::function<void(const std::vector<translated>&)> cycle_completed;

  private:
    void awakeFromNib();
    void build_views(const std::vector<std::string>& pids);
    void run_a_log();
    void start_over_link();
    void choose_more_parameters();
    void set_chart_title(const std::string& title);
    void reset_first_dial();
    bool moves_first_dial() const;
    QString described(int index) const;
    void describe_pictures();
    void follow_the_chart(bool yes);
    void choose_fast();
    void show_fast();
    void show_rate();
    void choose_second_dial(const std::set<int>& selected, std::size_t selected_before,
                            int shown_before);
    void draw_frame();
    void show_status_throttled();

    void work_task(int task, int step) override;
    adapter_handshake* handshake() override { return &handshake_; }
    bool takes_time_out(const std::string& text) override;
    void work_out_log(int step) { sampling_.work_out_log(step); }
    void work_out_mpg(int step) { work_out_log(step); }
    void work_out_boost(int step) { work_out_log(step); }
    void work_o2_layout(int step) { work_out_log(step); }
    void work_out_log_file();
    void log_failed(const std::string& why);

    // Called by the sampling loop.
    void another_car() override;
    void show_parameters(const std::vector<std::string>& pids) override;
    void nothing_to_sample() override;
    void questions_answered() override;
    void cycles_begin() override;
    void reply_came(const std::string& reply) override;
    void sample_filed(int index, double value) override;
    void cycle_filed(std::size_t row) override;
    void fast_sampling_reduced(bool given_up) override;
    void fast_sampling_gains_nothing() override;

    std::unique_ptr<live_view> view_;
    live_pictures pictures_;
    frame_pacer frames_;
    live_handshake handshake_;
    sampling_loop sampling_;
    run_logger log_;
    std::optional<parameter_set> car_parameters_;
    std::function<void()> scan_ended_;
    bool scan_completed_ = false;

    int cur_pid_showing = 0;
    std::set<int> cur_thumbs_selected;
    std::string log_failure_;
    int gauge_1_idx = 0, gauge_2_idx = -1;
    int l_prev_mode_idx = 0;

    bool fast_helps_ = true; // as far as known for this car
    std::optional<int> fast_level_;
    std::uint64_t values_counted_ = 0; // for the rate shown
    run_loop::milliseconds counted_at_{0};

    bool status_changed_ = false;
    run_loop::milliseconds status_shown_{0};
};

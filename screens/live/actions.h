// The live-data screen: the user picks a kind of run, starts and stops it with one button, and
// watches the run's parameters as thumbnails, one large chart and up to two dials, while the
// sampling loop asks the car for one after the other without pause.
//
// Files: actions.cpp set-up, selection, start and stop, the task engine; actions_sampling.cpp the
// sampling loop; live_runs what the kinds of run differ in; live_handshake the way to the car;
// live_view the widgets; live_pictures what they show. Requests leave before anything is drawn or
// written: pictures and status line follow with the next paced frame.
#pragma once

#include "frame_pacer.h"
#include "live_handshake.h"
#include "live_pictures.h"
#include "live_runs.h"
#include "log_file.h"
#include "obd_screen.h"
#include "sample_rows.h"
#include "supported_scan.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

class live_view;

class actions final : public obd_screen {
  public:
    explicit actions(Ks_lite_delegate& delegate);
    ~actions() override;

    QWidget* view() override;
    void set_status_msg(const std::string& message) override;
    void work_current_task() override;
    void handleOBDRcvdMsg(const std::string& text) override;
    void leave_cur_op_gracefully(const std::string& message) override;
    void link_lost() override;

    // Builds the same views from the user's parameters once more.
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

    // Asks the car, over the handshake when it is not up, and tells `ended` however that ends; not
    // while a run goes on.
    void ask_what_car_supports(std::function<void()> ended);
    // What the car told last; nothing when it was not asked since the handshake, or did not tell.
    const std::optional<parameter_set>& car_parameters() const { return car_parameters_; }
    // Every question of the last asking was answered, if with nothing.
    bool scan_completed() const { return scan_completed_; }

    bool running() const { return keep_logging; }
    // A run waits for the adapter or for the link to it.
    bool awaits_adapter() const {
        return keep_logging && (awaits_owed_reply() || KS_delegate.anything_outstanding());
    }
    const std::vector<std::string>& pids() const { return _pid_logitems_list; }
    // Of the run: what was answered since its first cycle began.
    std::uint64_t requests_answered() const { return requests_answered_; }
    std::uint64_t cycles() const { return cycles_; }
    // The samples of the run; the last row is being filled.
    sample_rows& samples() { return cur_log_points; }
    // The log of the run; empty when there is none.
    const std::string& log_path() const { return cur_log_file_name; }
    // Why this run is not, or no longer, logged.
    const std::string& log_failure() const { return log_failure_; }
    // Told as the first cycle of a run begins, before its first request.
    std::function<void()> sampling_begins;
    // Told the values of a cycle, in the order of pids(), after its line is in the log.
    std::function<void(const std::vector<translated>&)> cycle_completed;

  private:
    void awakeFromNib();
    void build_views();
    void run_a_log();
    void start_over_link();
    void choose_more_parameters();
    void set_chart_title(const std::string& title);
    void put_first_dial_back();
    bool moves_first_dial() const;
    QString described(int index) const;
    void describe_pictures();
    void follow_the_chart(bool yes);
    void choose_second_dial(const std::set<int>& selected, std::size_t selected_before, int shown_before);
    void draw_frame();
    void show_status_now_and_then();

    // actions_sampling.cpp
    void work_out_log(int step);
    void work_out_mpg(int step) { work_out_log(step); }
    void work_out_boost(int step) { work_out_log(step); }
    void work_o2_layout(int step) { work_out_log(step); }
    void start_sampling();
    void ask_supported_pids();
    bool take_supported_pids(const std::string& reply);
    void begin_cycle();
    void first_question_answered();
    std::optional<std::string> screened_reply();
    void take_reply();
    enum class order_of_answer { in_step, one_behind, wrong };
    order_of_answer order_of(std::string_view reply) const;
    void ask_next(order_of_answer order);
    bool await_straggler(order_of_answer order);
    void ask(const sample_request& request);
    void prep_and_send_cmd(std::string_view command, int this_time_out);
    void note_reply(const std::string& reply);
    void add_item_to_log_vector(std::string_view this_item_val, int this_idx);
    void output_MPG_item(int index, const std::string& this_reply_cp);
    void file_sample(const std::string& reply, int index);
    void complete_cycle();
    void end_by_timeout(const char* message);
    void fail_with_alert(const std::string& message);

    // the log of the run
    void work_out_log_file();
    void write_log_line(const std::string& line);
    void close_log();
    void log_failed(const std::string& why);

    std::unique_ptr<live_view> view_;
    live_pictures pictures_;
    frame_pacer frames_;
    live_handshake handshake_;
    std::unique_ptr<live_run> run_;
    std::optional<parameter_set> car_parameters_;
    std::function<void()> scan_ended_;
    bool scan_completed_ = false;

    int cur_pid_showing = 0;
    std::set<int> cur_thumbs_selected;
    bool do_the_log = false;
    log_file log_out_stream, times_out_stream; // the second: when each of its lines was
    std::string cur_log_file_name;
    std::string log_failure_;
    int gauge_1_idx = 0, gauge_2_idx = -1;
    bool keep_logging = false;
    int cur_log_idx = 0; // place, in the list of parameters, of what is being asked for
    std::vector<std::string> _pid_logitems_list;
    std::optional<std::string> p_cur_avail_pids; // absent and empty differ
    int p_obdTimeOutCnt = 0;
    sample_set these_samples;
    sample_rows cur_log_points;
    std::vector<translated> cycle_values_;
    int l_prev_mode_idx = 0;

    std::vector<sample_request> requests_;
    std::size_t cur_request_ = 0;
    bool asks_first_question_ = false;
    int waits_in_vain_ = 0;   // for an answer that the adapter still owed
    int answers_in_step_ = 0; // since the last that was not
    std::uint64_t requests_answered_ = 0, cycles_ = 0;
    run_loop::milliseconds first_request_{0}, cycle_filed_{0};
    bool status_changed_ = false;
    run_loop::milliseconds status_shown_{0};
};

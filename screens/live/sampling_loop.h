// The sampling loop: one request after the other, each as soon as the reply before it has been
// handled. It screens and files the replies and notifies its owner. The next request leaves before
// the owner is notified of a sample, hence before anything is drawn or written. No widgets.
// fast_sampling.cpp: the same with a fast_sampler.
#pragma once

#include "live_runs.h"
#include "obd_screen.h"
#include "sample_rows.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class adapter_handshake;
class fast_sampler;

class sampling_listener {
  public:
    // The handshake begins: what was known about the car is invalid.
    virtual void another_car() = 0;
    // The first question determined the parameters to show; they have no rows yet.
    virtual void show_parameters(const std::vector<std::string>& pids) = 0;
    // The car was asked, and has none of the parameters of this run.
    virtual void nothing_to_sample() = 0;
    // A run without samples has its answers.
    virtual void questions_answered() = 0;
    // The first cycle begins, before its first request.
    virtual void cycles_begin() = 0;
    virtual void reply_came(const std::string& reply) = 0;
    // The value is NaN for an unusable reply.
    virtual void sample_filed(int index, double value) = 0;
    // The cycle is row `row` of samples().
    virtual void cycle_filed(std::size_t row) = 0;
    // Replies did not match: fast sampling continues one level lower, or was given up.
    virtual void fast_sampling_reduced(bool given_up) = 0;
    // Nothing could be gained: the rest of the run is plain.
    virtual void fast_sampling_gains_nothing() = 0;

  protected:
    ~sampling_listener() = default;
};

class sampling_loop {
  public:
    sampling_loop(obd_screen& screen, adapter_handshake& handshake, sampling_listener& listener);
    ~sampling_loop();

    // Empty samples of these parameters, two-digit hex text each.
    void set_parameters(const std::vector<std::string>& pids);
    // Begins a run; its first step follows when the link is up.
    void begin(std::unique_ptr<live_run> run);
    void end();
    bool running() const { return keep_logging; }

    // Told as the first cycle begins: as fast as the car answers, with at most so many requests a
    // second on CAN (0: as many as it takes); nothing: plainly.
    void sample_fast(std::optional<int> most_a_second) { most_a_second_ = most_a_second; }
    std::optional<int> fast_most() const { return most_a_second_; }
    // See fast_sampler::level(); nothing while the run is plain.
    std::optional<int> fast_level() const;
    // In a deliberate pause between two requests.
    bool pausing() const { return pausing_; }
    void restore_adapter();

    void work_out_log(int step);
    void prep_and_send_cmd(std::string_view command, int this_time_out);
    void add_item_to_log_vector(std::string_view this_item_val, int this_idx);
    void output_MPG_item(int index, const std::string& this_reply_cp);

    const std::vector<std::string>& pids() const { return _pid_logitems_list; }
    // The last row is being filled.
    sample_rows& samples() { return cur_log_points; }
    const sample_set& latest() const { return these_samples; }
    // Of the last complete row, in the order of pids().
    const std::vector<translated>& cycle_values() const { return cycle_values_; }
    // Of the run: what was answered since its first cycle began, how much of it with a value, and
    // how long its complete cycles took.
    std::uint64_t requests_answered() const { return requests_answered_; }
    std::uint64_t values() const { return values_; }
    std::uint64_t cycles() const { return cycles_; }
    run_loop::milliseconds length() const { return cycle_filed_ - first_request_; }

  private:
    // How long the answer that is still owed is awaited after one to another request: as long as an
    // adapter at most waits for the car, and longer when that was not enough.
    static constexpr run_loop::milliseconds STRAGGLER_BOUND{1000};

    enum sampling_step : int {
        START = 0,
        REPLY = 1,
        FIRST_QUESTION_ANSWERED = 2,
        FAST_REPLY = 3,
        NOTHING = 4, // the replies are the link's
    };

    void start_sampling();
    void ask_supported_pids();
    bool take_supported_pids(const std::string& reply);
    void begin_cycle();
    void first_question_answered();
    bool ended_by(const std::string& reply);
    std::optional<std::string> screened_reply();
    void take_reply();
    void file_reply(const sample_request& asked, const std::string& reply,
                    const std::string& shown);
    void end_cycle();
    enum class order_of_answer { in_step, one_behind, wrong };
    order_of_answer order_of(std::string_view reply) const;
    void ask_next(order_of_answer order);
    bool await_straggler(order_of_answer order);
    void ask(const sample_request& request);
    void file_sample(const std::string& reply, int index);
    void complete_cycle();
    void end_by_timeout(const char* message);
    void fail_with_alert(const std::string& message);

    // fast_sampling.cpp
    void begin_fast();
    void ask_fast();
    void send_after(run_loop::milliseconds pause, std::function<void()> send);
    void send_fast(const std::string& command);
    void send_command(const std::string& command, int next_step);
    void stop_timer();
    void take_fast_reply();
    void adapter_restored(bool well);

    obd_screen& screen_;
    adapter_handshake& handshake_;
    sampling_listener& listener_;
    std::unique_ptr<live_run> run_;

    bool keep_logging = false;
    int cur_log_idx = 0; // index of the requested parameter
    std::vector<std::string> _pid_logitems_list;
    std::optional<std::string> p_cur_avail_pids; // absent and empty are different
    int p_obdTimeOutCnt = 0;
    sample_set these_samples;
    sample_rows cur_log_points;
    std::vector<translated> cycle_values_;

    std::vector<sample_request> requests_;
    std::size_t cur_request_ = 0;
    bool asks_first_question_ = false;
    int failed_waits_ = 0;    // for an answer that the adapter still owed
    int answers_in_step_ = 0; // since the last that was not
    std::uint64_t requests_answered_ = 0, values_ = 0, cycles_ = 0;
    run_loop::milliseconds first_request_{0}, cycle_filed_{0};

    std::optional<int> most_a_second_;
    std::unique_ptr<fast_sampler> fast_;
    bool fast_silent_ = false; // no prompt has come
    bool fast_given_up_ = false;
    bool continue_plain_ = false;  // once the adapter is put back
    run_loop::timer_id timer_ = 0; // of a pause, or of patience
    bool pausing_ = false;
    run_loop::milliseconds plain_pause_{0}; // of a car that complained
};

// The sampling loop of the live-data screen: one request after the other, each as soon as the reply
// before it has been handled. A request leaves before the log is written and before anything is
// drawn.
#include "actions.h"
#include "alerts.h"
#include "fuel_economy.h"
#include "globalVars.h"
#include "live_view.h"
#include "parameters.h"
#include "run_times.h"
#include "sample_reply.h"
#include "system_log.h"
#include "text.h"
#include "user_defaults.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

namespace {

enum step : int {
    START = 0,
    REPLY = 1,
    FIRST_QUESTION_ANSWERED = 2,
};

constexpr int SUPPORTED_PIDS_TIME_OUT = 12000;
constexpr int REPLY_TIME_OUT = 3000;
constexpr std::size_t LONGEST_SAMPLE = 331;

// How long the answer that is still owed is awaited after one to another request: as long as an
// adapter at most waits for the car, and longer when that was not enough.
constexpr run_loop::milliseconds STRAGGLER_BOUND{1000};
constexpr run_loop::milliseconds LONG_STRAGGLER_BOUND{4000};
constexpr int MOST_WAITS_IN_VAIN = 3;
constexpr int ANSWERS_TO_TRUST_AGAIN = 50; // in a row

// The toolkit's operation has another name: asking for this one fails.
std::string fix_3dos(std::string_view reply) {
    if (reply.empty())
        return {};
    throw std::runtime_error("the toolkit has no operation fix_3dos:");
}

// Of several replies that came in one piece the one that answers the request, if any does: what
// stands before it was left over.
std::string reply_to(std::string_view pid, const std::string& replies) {
    for (const std::string_view each : split(replies, ">"))
        if (answers_parameter(whole_answer(each), pid))
            return std::string(each);
    return replies;
}

// A reply as it goes into the log, where "," and line ends have a meaning of their own. What line
// noise has made of it must not read as an answer there, so that nothing is left out.
std::string log_field(std::string_view reply) {
    constexpr char NO_TEXT = '.';
    std::string field(reply);
    for (char& c : field)
        if (c < ' ' || c > '~' || c == ',')
            c = NO_TEXT;
    return field.empty() ? "~" : field;
}

} // namespace

void actions::work_out_log(int step) {
    if (!keep_logging)
        return;
    try {
        switch (step) {
        case START:
            start_sampling();
            break;
        case REPLY:
            take_reply();
            break;
        case FIRST_QUESTION_ANSWERED:
            first_question_answered();
            break;
        default:
            break;
        }
    } catch (const std::exception& failure) {
        show_err_msg("work_out_log::Did not fully complete: ( " + std::string(failure.what()) +
                     ")");
        fail_with_alert(cur_err_msg);
    }
}

void actions::start_sampling() {
    set_status_msg("Starting log");
    if (handshake_.comes_first()) {
        car_parameters_.reset(); // it may be another car
        return;
    }
    const std::string reply = odb_curReplyMsg;
    odb_curReplyMsg.clear();
    if (p_cur_avail_pids && p_cur_avail_pids->empty()) {
        if (!cur_cmd.contains("01 00\r")) {
            ask_supported_pids();
            return;
        }
        if (!take_supported_pids(reply))
            return;
    }
    begin_cycle();
}

void actions::ask_supported_pids() {
    g_this_delta = SUPPORTED_PIDS_TIME_OUT;
    cur_cmd = std::string_view("01 00\r");
    next_step_idx = START;
    prep_and_send_cmd(cur_cmd, SUPPORTED_PIDS_TIME_OUT);
}

// False when the run has ended or the request was repeated.
bool actions::take_supported_pids(const std::string& reply) {
    std::string text = without(reply, " ");
    if (contains(text, "...")) {
        text = fix_3dos(text);
        if (contains(text, "UNABLETOCONNECT")) {
            if (g_retries > 0) {
                g_retries = 0;
                keep_logging = false;
                fail_with_alert("Connection to car issue.. Check and try again");
                return false;
            }
            ++g_retries;
            ask_supported_pids();
            return false;
        }
    }
    show_err_msg("Initial reply: ( " + text + ")");
    const auto messages = mac_toolies::Pull_ECU_msg(text);
    if (!messages || messages->empty())
        throw std::runtime_error("no control unit in the answer to 01 00");
    set_status_msg("Got proper reply: ( " + messages->front() + ")");
    p_cur_avail_pids = slice(messages->front(), 4);
    return true;
}

void actions::begin_cycle() {
    cur_request_ = 0;
    g_this_delta = REPLY_TIME_OUT;
    const auto question = run_->first_question();
    asks_first_question_ = question.has_value();
    if (question) {
        requests_ = {{*question, 0}};
        ask(requests_.front());
        return;
    }
    if (!run_->samples()) {
        scan_completed_ = true;
        set_status_msg(localized(car_parameters_ ? "ui_more_told" : "ui_more_untold"));
        leave_cur_op_gracefully("");
        return;
    }
    if (const auto found = run_->parameters_found()) {
        if (found->empty()) {
            set_status_msg(localized("ui_live_no_sensors"));
            leave_cur_op_gracefully("");
            return;
        }
        _pid_logitems_list = *found;
        rework_gui_objects(g_cur_task);
    }
    requests_ = run_->requests(_pid_logitems_list);
    if (requests_.empty())
        throw std::out_of_range("no PIDs selected");
    if (sampling_begins)
        sampling_begins();
    first_request_ = cycle_filed_ = KS_delegate.doors().loop.now();
    ask(requests_.front());
}

void actions::first_question_answered() {
    const std::optional<std::string> reply = screened_reply();
    if (!reply)
        return;
    if (answers_another(*reply, requests_.front().pid) &&
        await_straggler(order_of_answer::one_behind))
        return; // and ask once more
    run_->whole_reply_came(odb_curReplyMsg);
    run_->first_question_answered(*reply);
    begin_cycle();
}

void actions::ask(const sample_request& request) {
    cur_log_idx = request.place;
    const std::string command = "01 " + request.pid + "\r";
    cur_cmd = std::string_view(command);
    next_step_idx = asks_first_question_ ? FIRST_QUESTION_ANSWERED : REPLY;
    prep_and_send_cmd(cur_cmd, g_this_delta);
}

// Neither argument counts, on purpose: what is sent is cur_cmd, and the time-out is g_this_delta.
void actions::prep_and_send_cmd(std::string_view, int) {
    g_replies_expected = 1;
    g_obd_msg_state = S_WAITING;
    sendOBDcmd(cur_cmd);
}

void actions::add_item_to_log_vector(std::string_view this_item_val, int this_idx) {
    if (this_idx < 0) {
        cur_log_points.append_fresh_row();
        return;
    }
    const auto place = static_cast<std::size_t>(this_idx);
    // What is no whole answer stays as it came, but is no value.
    const std::string_view answer = answer_in(this_item_val);
    cycle_values_[place] = parameter_value(toolies, answer.empty() ? "~" : answer);
    these_samples[place][1] = cycle_values_[place].text;
    cur_log_points.file(place, this_item_val, cycle_values_[place]);
}

void actions::end_by_timeout(const char* message) {
    connected_2_KS_interface = false;
    next_step_idx = 0;
    leave_cur_op_gracefully("");
    set_status_msg(message);
}

void actions::fail_with_alert(const std::string& message) {
    KS_delegate.doors().message_boxes.show({message});
    leave_cur_op_gracefully("");
}

// The first line of the reply without blanks, "~" for one that the adapter did not understand;
// nothing when the run has ended.
std::optional<std::string> actions::screened_reply() {
    if (g_obd_msg_state == S_FAIL) {
        end_by_timeout("Timed out .. Try again");
        return std::nullopt;
    }
    if (p_obdTimeOutCnt < 1 && mac_toolies::clean_a_reply(odb_curReplyMsg).empty()) {
        end_by_timeout("Timed out** .. Try again");
        return std::nullopt;
    }
    std::string reply =
        p_obdTimeOutCnt < 1 ? reply_to(requests_[cur_request_].pid, odb_curReplyMsg) : "~";
    if (contains(reply, "UNABLE TO CONNECT")) {
        fail_with_alert("Did not get a reply from Car port.  Check ignition key is at least in "
                        "position 2(right before crank) and pairing/connections");
        return std::nullopt;
    }
    if (contains(reply, "?")) {
        if (g_retries > 0) {
            g_retries = 0;
            fail_with_alert("Did not understand cmd  ... Try again");
            return std::nullopt;
        }
        ++g_retries;
        reply = "~";
    }
    reply = whole_answer(reply);
    reply.resize(std::min(reply.size(), LONGEST_SAMPLE));
    return reply;
}

actions::order_of_answer actions::order_of(std::string_view reply) const {
    const sample_request& before =
        requests_[(cur_request_ == 0 ? requests_.size() : cur_request_) - 1];
    if (!answers_another(reply, requests_[cur_request_].pid))
        return order_of_answer::in_step;
    return answers_another(reply, before.pid) ? order_of_answer::wrong
                                              : order_of_answer::one_behind;
}

void actions::take_reply() {
    const std::optional<std::string> screened = screened_reply();
    if (!screened)
        return;
    ++requests_answered_;
    const sample_request asked = requests_[cur_request_];
    const order_of_answer order = order_of(*screened);
    const bool out_of_step = order != order_of_answer::in_step;
    // What answers another request is not filed under this one's name.
    const std::string reply = run_->reply_to_file(asked, out_of_step ? "~" : *screened);
    note_reply(*screened);
    qCDebug(log_screens, "loggy:%s", reply.c_str());
    if (g_cur_task == TASK_FUEL_ECONOMY)
        output_MPG_item(cur_log_idx, reply);
    else
        file_sample(reply, cur_log_idx);

    if (++cur_request_ < requests_.size()) {
        ask_next(order);
        return;
    }
    cur_request_ = 0;
    cycle_filed_ = KS_delegate.doors().loop.now();
    if (const auto computed = run_->cycle_answered()) {
        cur_log_idx = computed->place;
        output_MPG_item(computed->place, computed->reply);
    }
    ask_next(order); // before the disk and the listener take their time
    complete_cycle();
}

// Replies come faster than they can be read: the status line follows with the frames.
void actions::note_reply(const std::string& reply) {
    cur_err_msg = "Got proper reply: ( " + reply + ")";
    note_status(cur_err_msg);
    status_changed_ = true;
}

void actions::file_sample(const std::string& reply, int index) {
    add_item_to_log_vector(reply, index);
    pictures_.sample(index, cycle_values_[static_cast<std::size_t>(index)].value);
    frames_.request();
}

// An item of the fuel run, asked for or computed: there the first dial follows the large chart
// (put_first_dial_back).
void actions::output_MPG_item(int index, const std::string& this_reply_cp) {
    file_sample(this_reply_cp, index);
}

// An answer to another request than the last means that the adapter owes one: it is awaited and
// dropped, or every answer from now on would be one behind.
void actions::ask_next(order_of_answer order) {
    if (order == order_of_answer::in_step) {
        if (++answers_in_step_ >= ANSWERS_TO_TRUST_AGAIN)
            waits_in_vain_ = 0;
    } else {
        answers_in_step_ = 0;
        if (await_straggler(order))
            return;
    }
    ask(requests_[cur_request_]);
}

// False for an adapter that has been waited for in vain before: it owes nothing, it answers wrong.
bool actions::await_straggler(order_of_answer order) {
    if (waits_in_vain_ >= (order == order_of_answer::one_behind ? MOST_WAITS_IN_VAIN : 1))
        return false;
    KS_delegate.replies().answer_is_missing();
    when_adapter_is_free(waits_in_vain_ == 0 ? STRAGGLER_BOUND : LONG_STRAGGLER_BOUND,
                         [this](bool in_vain) {
                             waits_in_vain_ = in_vain ? waits_in_vain_ + 1 : 0;
                             ask(requests_[cur_request_]);
                         });
    return true;
}

void actions::complete_cycle() {
    std::string line;
    const std::size_t row = cur_log_points.rows() - 1;
    if (do_the_log && log_out_stream.is_open())
        for (std::size_t place = 0; place < _pid_logitems_list.size(); ++place)
            line += (place == 0 ? "" : ",") + log_field(cur_log_points.text(row, place));
    add_item_to_log_vector("-X", -1);
    ++cycles_;
    if (!line.empty())
        write_log_line(line + "\n");
    if (cycle_completed)
        cycle_completed(cycle_values_);
}

void actions::work_out_log_file() {
    log_failure_.clear();
    cur_log_file_name.clear();
    view_->show_log_mark("");
    if (!KS_delegate.doors().defaults.boolean(LOG_RUNS_KEY))
        return;
    do_the_log = true;
    const std::string vehicle = g_vehicle_idx > 0 ? std::to_string(g_vehicle_idx) : std::string();
    cur_log_file_name = vehicle +
                        mac_toolies::sharedManager().work_out_log_fname_for_mode(g_cur_task) +
                        (g_cur_task == TASK_RUN_LOG ? ".gol" : ".txt");
    if (const auto why = log_out_stream.create(cur_log_file_name)) {
        qCWarning(log_screens, "work_out_log_file::%s", why->c_str());
        cur_log_file_name.clear();
        const std::string no_folder = toolies.make_log_folder();
        log_failed(toolies.log_folder() + ": " + (no_folder.empty() ? *why : no_folder));
        return;
    }
    log_out_stream.leave_no_empty_file();
    if (const auto why = times_out_stream.create(times_of_log(cur_log_file_name)))
        log_failed(times_of_log(cur_log_file_name) + ": " + *why);
    times_out_stream.leave_no_empty_file();
}

void actions::write_log_line(const std::string& line) {
    if (const auto why = log_out_stream.append_line(line)) {
        log_failed(*why);
        return;
    }
    const auto time = std::to_string((cycle_filed_ - first_request_).count()) + "\n";
    if (const auto why = times_out_stream.append_line(time))
        log_failed(times_out_stream.path() + ": " + *why);
}

void actions::close_log() {
    if (const auto why = log_out_stream.close())
        log_failed(*why);
    if (const auto why = times_out_stream.close())
        log_failed(times_out_stream.path() + ": " + *why);
    if (!log_out_stream.has_lines())
        cur_log_file_name.clear(); // no file is left
}

// The run goes on; the mark stays until the next one starts.
void actions::log_failed(const std::string& why) {
    log_failure_ = localized("ui_live_log_failed") + " " + why;
    view_->show_log_mark(log_failure_);
}

#include "sampling_loop.h"

#include "adapter_handshake.h"
#include "alerts.h"
#include "fast_sampler.h"
#include "fuel_economy.h"
#include "globalVars.h"
#include "parameters.h"
#include "sample_reply.h"
#include "system_log.h"
#include "text.h"

#include <algorithm>
#include <cmath>
#include <exception>
#include <stdexcept>

namespace {

constexpr int SUPPORTED_PIDS_TIME_OUT = 12000;
constexpr int REPLY_TIME_OUT = 3000;
constexpr std::size_t LONGEST_SAMPLE = 331;

constexpr run_loop::milliseconds LONG_STRAGGLER_BOUND{4000};
constexpr int MOST_FAILED_WAITS = 3;
constexpr int ANSWERS_TO_TRUST_AGAIN = 50; // in a row

// The toolkit's operation has another name, so looking this one up fails.
std::string fix_3dos(std::string_view reply) {
    if (reply.empty())
        return {};
    throw std::runtime_error("the toolkit has no operation fix_3dos:");
}

// Of several replies in one piece, the one that answers the request, if any: those before it are
// leftovers.
std::string reply_to(std::string_view pid, const std::string& replies) {
    for (const std::string_view each : split(replies, ">"))
        if (answers_parameter(whole_answer(each), pid))
            return std::string(each);
    return replies;
}

} // namespace

sampling_loop::sampling_loop(obd_screen& screen, adapter_handshake& handshake,
                             sampling_listener& listener)
    : screen_(screen), handshake_(handshake), listener_(listener) {}

void sampling_loop::set_parameters(const std::vector<std::string>& pids) {
    _pid_logitems_list = pids;
    cur_log_points = sample_rows(pids.size());
    cur_log_points.append_fresh_row();
    these_samples.clear();
    for (const std::string& pid : pids)
        these_samples.push_back({pid, "0.0", "0.0", "0.0"});
    cycle_values_.assign(pids.size(), {});
    first_request_ = cycle_filed_ = {};
}

void sampling_loop::begin(std::unique_ptr<live_run> run) {
    run_ = std::move(run);
    keep_logging = true;
    if (run_->samples()) {
        cur_log_points.clear();
        add_item_to_log_vector("-X", -1);
        requests_answered_ = values_ = cycles_ = 0;
        first_request_ = cycle_filed_ = {};
        failed_waits_ = 0;
    }
    fast_.reset();
    continue_plain_ = false;
    plain_pause_ = {};
}

void sampling_loop::end() {
    stop_timer();
    fast_.reset();
    continue_plain_ = false;
    cur_log_idx = 0;
    keep_logging = false;
}

void sampling_loop::work_out_log(int step) {
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
        case FAST_REPLY:
            take_fast_reply();
            break;
        default:
            break;
        }
    } catch (const std::exception& failure) {
        screen_.show_err_msg("work_out_log::Did not fully complete: ( " +
                             std::string(failure.what()) + ")");
        fail_with_alert(screen_.cur_err_msg);
    }
}

void sampling_loop::start_sampling() {
    screen_.set_status_msg("Starting log");
    if (handshake_.comes_first()) {
        listener_.another_car();
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

void sampling_loop::ask_supported_pids() {
    g_this_delta = SUPPORTED_PIDS_TIME_OUT;
    cur_cmd = std::string_view("01 00\r");
    next_step_idx = START;
    prep_and_send_cmd(cur_cmd, SUPPORTED_PIDS_TIME_OUT);
}

// False if the run has ended or the request was repeated.
bool sampling_loop::take_supported_pids(const std::string& reply) {
    std::string text = without(reply, " ");
    if (contains(text, "...")) {
        text = fix_3dos(text);
        if (contains(text, "UNABLETOCONNECT")) {
            if (g_retries > 0) {
                g_retries = 0;
                fail_with_alert("Connection to car issue.. Check and try again");
                return false;
            }
            ++g_retries;
            ask_supported_pids();
            return false;
        }
    }
    screen_.show_err_msg("Initial reply: ( " + text + ")");
    const auto messages = mac_toolies::Pull_ECU_msg(text);
    if (!messages || messages->empty())
        throw std::runtime_error("no control unit in the answer to 01 00");
    screen_.set_status_msg("Got proper reply: ( " + messages->front() + ")");
    p_cur_avail_pids = slice(messages->front(), 4);
    return true;
}

void sampling_loop::begin_cycle() {
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
        listener_.questions_answered();
        return;
    }
    if (const auto found = run_->parameters_found()) {
        if (found->empty()) {
            listener_.nothing_to_sample();
            return;
        }
        _pid_logitems_list = *found;
        listener_.show_parameters(*found);
    }
    requests_ = run_->requests(_pid_logitems_list);
    if (requests_.empty())
        throw std::out_of_range("no PIDs selected");
    listener_.cycles_begin();
    first_request_ = cycle_filed_ = screen_.KS_delegate.doors().loop.now();
    if (most_a_second_)
        begin_fast();
    else
        ask(requests_.front());
}

void sampling_loop::first_question_answered() {
    const std::optional<std::string> reply = screened_reply();
    if (!reply)
        return;
    if (answers_another(*reply, requests_.front().pid) &&
        await_straggler(order_of_answer::one_behind))
        return; // and ask again
    run_->whole_reply_came(odb_curReplyMsg);
    run_->first_question_answered(*reply);
    begin_cycle();
}

void sampling_loop::ask(const sample_request& request) {
    cur_log_idx = request.place;
    send_after(plain_pause_, [this, command = "01 " + request.pid] {
        send_command(command, asks_first_question_ ? FIRST_QUESTION_ANSWERED : REPLY);
    });
}

// Deliberately ignores both arguments: cur_cmd is sent, and the time-out is g_this_delta.
void sampling_loop::prep_and_send_cmd(std::string_view, int) {
    g_replies_expected = 1;
    g_obd_msg_state = S_WAITING;
    screen_.sendOBDcmd(cur_cmd);
}

void sampling_loop::add_item_to_log_vector(std::string_view this_item_val, int this_idx) {
    if (this_idx < 0) {
        cur_log_points.append_fresh_row();
        return;
    }
    const auto place = static_cast<std::size_t>(this_idx);
    // An incomplete answer is kept as it came, but is not a value.
    const std::string_view answer = answer_in(this_item_val);
    cycle_values_[place] = parameter_value(screen_.toolies, answer.empty() ? "~" : answer);
    these_samples[place][1] = cycle_values_[place].text;
    cur_log_points.file(place, this_item_val, cycle_values_[place]);
}

void sampling_loop::end_by_timeout(const char* message) {
    connected_2_KS_interface = false;
    next_step_idx = 0;
    screen_.KS_delegate.forget_restore(); // it is not there; the handshake will see to it
    screen_.leave_cur_op_gracefully("");
    screen_.set_status_msg(message);
}

void sampling_loop::fail_with_alert(const std::string& message) {
    screen_.KS_delegate.doors().message_boxes.show({message});
    screen_.leave_cur_op_gracefully("");
}

// Whether that reply ended the run.
bool sampling_loop::ended_by(const std::string& reply) {
    if (g_obd_msg_state == S_FAIL) {
        end_by_timeout("Timed out .. Try again");
        return true;
    }
    if (!contains(reply, "UNABLE TO CONNECT"))
        return false;
    fail_with_alert("Did not get a reply from Car port.  Check ignition key is at least in "
                    "position 2(right before crank) and pairing/connections");
    return true;
}

// The first line of the reply without blanks, "~" if the adapter did not understand the request;
// nothing if the run has ended.
std::optional<std::string> sampling_loop::screened_reply() {
    if (g_obd_msg_state == S_FAIL) {
        ended_by({});
        return std::nullopt;
    }
    if (p_obdTimeOutCnt < 1 && mac_toolies::clean_a_reply(odb_curReplyMsg).empty()) {
        end_by_timeout("Timed out** .. Try again");
        return std::nullopt;
    }
    std::string reply =
        p_obdTimeOutCnt < 1 ? reply_to(requests_[cur_request_].pid, odb_curReplyMsg) : "~";
    if (ended_by(reply))
        return std::nullopt;
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

sampling_loop::order_of_answer sampling_loop::order_of(std::string_view reply) const {
    const sample_request& before =
        requests_[(cur_request_ == 0 ? requests_.size() : cur_request_) - 1];
    if (!answers_another(reply, requests_[cur_request_].pid))
        return order_of_answer::in_step;
    return answers_another(reply, before.pid) ? order_of_answer::wrong
                                              : order_of_answer::one_behind;
}

void sampling_loop::take_reply() {
    const std::optional<std::string> screened = screened_reply();
    if (!screened)
        return;
    const sample_request asked = requests_[cur_request_];
    const order_of_answer order = order_of(*screened);
    const bool out_of_step = order != order_of_answer::in_step;
    // An answer to another request is not filed under this one.
    file_reply(asked, out_of_step ? "~" : *screened, *screened);
    if (++cur_request_ < requests_.size()) {
        ask_next(order);
        return;
    }
    end_cycle();
    ask_next(order); // before writing and notifying, which take time
    complete_cycle();
}

void sampling_loop::file_reply(const sample_request& asked, const std::string& raw,
                               const std::string& shown) {
    ++requests_answered_;
    cur_log_idx = asked.place;
    const std::string reply = run_->reply_to_file(asked, raw);
    listener_.reply_came(shown);
    qCDebug(log_screens, "loggy:%s", reply.c_str());
    if (g_cur_task == TASK_FUEL_ECONOMY)
        output_MPG_item(cur_log_idx, reply);
    else
        file_sample(reply, cur_log_idx);
    values_ += !std::isnan(cycle_values_[static_cast<std::size_t>(asked.place)].value);
}

// Computes the values derived from its answers.
void sampling_loop::end_cycle() {
    cur_request_ = 0;
    cycle_filed_ = screen_.KS_delegate.doors().loop.now();
    if (const auto computed = run_->cycle_answered()) {
        cur_log_idx = computed->place;
        output_MPG_item(computed->place, computed->reply);
    }
}

void sampling_loop::file_sample(const std::string& reply, int index) {
    add_item_to_log_vector(reply, index);
    listener_.sample_filed(index, cycle_values_[static_cast<std::size_t>(index)].value);
}

// An item of the fuel run, requested or computed.
void sampling_loop::output_MPG_item(int index, const std::string& this_reply_cp) {
    file_sample(this_reply_cp, index);
}

// An answer to another request than the last means that the adapter still owes one: it is awaited
// and dropped, or every later answer would lag by one.
void sampling_loop::ask_next(order_of_answer order) {
    if (order == order_of_answer::in_step) {
        if (++answers_in_step_ >= ANSWERS_TO_TRUST_AGAIN)
            failed_waits_ = 0;
    } else {
        answers_in_step_ = 0;
        if (await_straggler(order))
            return;
    }
    ask(requests_[cur_request_]);
}

// False if the wait was in vain before: then the adapter owes nothing, it just answers wrongly.
bool sampling_loop::await_straggler(order_of_answer order) {
    if (failed_waits_ >= (order == order_of_answer::one_behind ? MOST_FAILED_WAITS : 1))
        return false;
    screen_.KS_delegate.replies().answer_is_missing();
    screen_.when_adapter_is_free(failed_waits_ == 0 ? STRAGGLER_BOUND : LONG_STRAGGLER_BOUND,
                                 [this](bool in_vain) {
                                     failed_waits_ = in_vain ? failed_waits_ + 1 : 0;
                                     ask(requests_[cur_request_]);
                                 });
    return true;
}

void sampling_loop::complete_cycle() {
    add_item_to_log_vector("-X", -1);
    ++cycles_;
    listener_.cycle_filed(cur_log_points.rows() - 2);
}

#include "report_screen.h"

#include "globalVars.h"
#include "report_view.h"
#include "saved_report.h"
#include "text.h"

#include <utility>

namespace {

constexpr int TASK_REPORT = 20;              // of g_cur_task
constexpr run_loop::milliseconds LATE{1000}; // a reply may begin in time and never end

} // namespace

report_screen::report_screen(Ks_lite_delegate& delegate)
    : obd_screen(delegate), handshake_(*this), reader_(delegate.doors().loop, *this) {
    view_ = std::make_unique<report_view>(delegate, toolies);
    use_status_line(*view_->statusLbl());
    begin_afresh();
    view_->on_read = [this] { read_clicked(); };
    view_->on_cancel = [this] { cancel_clicked(); };
    reader_.progress = [this](topic about, std::size_t asked, std::size_t wanted) {
        show_progress(about, asked, wanted);
    };
    reader_.done = [this] { finish(); };
    view_->show_report();
    set_status_msg("");
}

report_screen::~report_screen() {
    reader_.done = nullptr;
    reader_.cancel();
    KS_delegate.doors().loop.cancel(bound_);
}

QWidget* report_screen::view() {
    return view_->root();
}

const car_report* report_screen::report() const {
    return has_report_ && last_report().report ? &*last_report().report : nullptr;
}

void report_screen::read_clicked() {
    reader_.done = nullptr;
    reader_.cancel();
    reader_.done = [this] { finish(); };
    has_report_ = false;
    g_cur_task = TASK_REPORT;
    g_cur_mode = TASK_REPORT;
    next_step_idx = 0;
    begin_task();
    set_status_msg(localized("report_starting"));
    if (work_over_link([] {}))
        view_->show_running(true);
    else
        leave_cur_op_gracefully("");
}

// The handshake itself never ends without its task.
void report_screen::cancel_clicked() {
    if (reader_.running())
        reader_.cancel();
    else
        leave_cur_op_gracefully("");
    set_status_msg(localized("report_cancelled"));
}

// Called first when the link is up, then with each reply to the reader's questions.
void report_screen::work_task(int task, int) {
    if (task != TASK_REPORT)
        return;
    if (reader_.running()) {
        if (!odb_curReplyMsg.empty())
            answer(odb_curReplyMsg);
    } else if (!handshake_.comes_first()) {
        // Headers stay on after a report: the next task begins with the handshake.
        connected_2_KS_interface = false;
        reader_.start(new_conversation());
    }
}

bool report_screen::takes_time_out(const std::string& text) {
    if (!reader_.running()) {
        const bool taken = obd_screen::takes_time_out(text);
        if (taken)
            view_->show_running(false);
        return taken;
    }
    if (!contains(text, "Timeout"))
        return false;
    if (!awaits_owed_reply())
        answer(std::nullopt);
    return true;
}

void report_screen::ask(const std::string& command, run_loop::milliseconds bound,
                        answered on_reply) {
    command_ = command;
    command_bound_ = bound;
    on_reply_ = std::move(on_reply);
    if (!KS_delegate.replies().owes()) {
        send_now();
        return;
    }
    // A late reply answers an earlier question.
    when_adapter_is_free(std::chrono::seconds(REPLY_TIME_OUT_AT_START), [this](bool) {
        odb_curReplyBuffyMsg.clear();
        if (on_reply_)
            send_now();
    });
}

void report_screen::send_now() {
    const auto seconds = std::chrono::ceil<std::chrono::seconds>(command_bound_);
    g_this_delta = static_cast<int>(seconds.count());
    bound_ = KS_delegate.doors().loop.after(seconds + LATE, [this] {
        bound_ = 0;
        answer(std::nullopt);
    });
    odb_curReplyMsg.clear();
    send_and_go_to(command_ + "\r", 0);
    g_this_delta = REPLY_TIME_OUT_AT_START;
}

void report_screen::give_up() {
    KS_delegate.doors().loop.cancel(std::exchange(bound_, 0));
    on_reply_ = nullptr;
}

void report_screen::answer(std::optional<std::string> reply) {
    KS_delegate.doors().loop.cancel(std::exchange(bound_, 0));
    if (const answered on_reply = std::exchange(on_reply_, nullptr))
        on_reply(std::move(reply));
}

void report_screen::show_progress(topic about, std::size_t asked, std::size_t wanted) {
    const std::string name = localized("report_topic_" + std::string(topic_name(about)));
    set_status_msg(replace_all(replace_all(replace_all(localized("report_progress"), "%1", name),
                                           "%2", std::to_string(asked + 1)),
                               "%3", std::to_string(wanted)));
}

// An earlier report is kept if nothing was reported.
void report_screen::finish() {
    view_->show_running(false);
    if (reader_.extended_wait())
        KS_did_connect_2_car = false; // so that the next handshake resets it
    end_task();
    if (!reader_.transcript().car_answered()) {
        set_status_msg(localized("report_nothing_told"));
        return;
    }
    last_report() = {report_of(reader_.transcript(), toolies), KS_delegate.link_number(), false};
    has_report_ = true;
    view_->show_report();
    set_status_msg(
        localized(last_report().report->all_reported() ? "report_done" : "report_done_partly"));
}

void report_screen::leave_cur_op_gracefully(const std::string&) {
    view_->show_running(false);
    end_task();
}

void report_screen::link_lost() {
    if (reader_.running())
        reader_.link_lost();
    else // before it has begun
        leave_cur_op_gracefully("");
}

void report_screen::hide_vin() {
    auto& kept = last_report().report;
    if (kept)
        kept = report_of(without_vin(std::move(kept->transcript)), toolies);
    view_->show_report();
}

void report_screen::save_before_leaving() {
    reader_.cancel();
}

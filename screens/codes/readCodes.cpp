#include "readCodes.h"

#include "alerts.h"
#include "codes_view.h"
#include "globalVars.h"
#include "kept_report.h"
#include "report_saving.h"
#include "sheet.h"
#include "system_log.h"
#include "text.h"
#include "user_defaults.h"

readCodes::readCodes(Ks_lite_delegate& delegate) : obd_screen(delegate), handshake_(*this) {
    view_ = std::make_unique<codes_view>(delegate);
    use_status_line(view_->statusLbl());
    awakeFromNib();
}

readCodes::~readCodes() = default;

QWidget* readCodes::view() {
    return view_->root();
}

void readCodes::awakeFromNib() {
    begin_afresh();
    view_->on_read = [this] { readCodes_clicked(); };
    view_->on_clear = [this] { clearCodes_clicked(); };
    view_->on_diagnose = [this] { obd_sim(); };
    view_->show_codes(codesReadArray);
    view_->show_readiness(readinessFlagsArray);
    // The results of an earlier screen's handshake are still valid.
    if (!g_cur_interface.empty())
        show_interface("Interface : " + g_cur_interface.str());
    if (!g_cur_protocol.empty())
        show_protocol(g_cur_protocol.str());
    view_->show_waity(true);
    set_status_msg("");
}

// A failed reading must leave nothing of the previous one.
void readCodes::forget_last_reading() {
    codesReadArray.clear();
    readinessFlagsArray.clear();
    unread_.clear();
    no_of_codes = 0;
    status_reported_ = count_known_ = codes_reported_ = false;
    status_bus_ = bus_form::unknown;
    view_->show_codes(codesReadArray);
    view_->show_readiness(readinessFlagsArray);
    view_->forget_status();
}

void readCodes::readCodes_clicked() {
    forget_last_reading();
    start_task(TASK_READ_CODES, "Starting Read Codes");
}

// Clearing erases most of what a report shows: offers to save an unsaved one that was read over
// this link. False if the user chose to save it and it was not saved.
bool readCodes::report_is_safe() {
    const kept_report& kept = last_report();
    if (!kept.report || kept.saved || kept.link != KS_delegate.link_number() ||
        KS_delegate.doors().defaults.boolean(NO_OFFER_KEY))
        return true;
    alert_request offer;
    offer.message = localized("ui_report_before_clear");
    offer.informative = localized("ui_report_before_clear_hint");
    offer.buttons = {localized("ui_report_save_first"), localized("ui_report_go_on")};
    if (KS_delegate.doors().message_boxes.show(offer) != 0)
        return true;
    const car_report report = report_to_export(KS_delegate, toolies);
    last_report().saved = save_sheet(KS_delegate, view(), report,
                                     sheet_of(report, KS_delegate.doors().resources), false);
    return last_report().saved;
}

void readCodes::clearCodes_clicked() {
    if (!report_is_safe())
        return;
    alert_request question;
    question.message = "Are you sure you want clear DTC Codes ";
    question.informative =
        "Will clear DTC, freeze data,O2 sensor test data and the like. Will need  few driving "
        "cycles to get back some of the data";
    question.buttons = {"Yes", "No"};
    if (KS_delegate.doors().message_boxes.show(question) != 0)
        return;
    start_task(TASK_CLEAR_CODES, "starting out");
}

void readCodes::start_task(int task, const std::string& status) {
    g_cur_task = task;
    g_cur_mode = task;
    next_step_idx = 0;
    succeeded_ = false;
    longer_timeout_requested_ = false;
    headers_repeated_ = 0;
    begin_task();
    set_status_msg(status);
    if (!work_over_link([this] { view_->show_waity(true); }))
        leave_cur_op_gracefully("");
}

void readCodes::work_task(int task, int step) {
    if (task == TASK_READ_CODES)
        work_out_read_codes(step);
    else if (task == TASK_CLEAR_CODES)
        work_out_clear_codes(step);
}

void readCodes::leave_cur_op_gracefully(const std::string&) {
    view_->show_waity(false);
    end_task();
}

void readCodes::show_interface(const std::string& text) {
    view_->set_interface(text);
}
void readCodes::show_protocol(const std::string& text) {
    view_->set_protocol(text);
}

void readCodes::show_control_units(int count) {
    units_answered_ = count;
    view_->set_extra_info(cur_err_msg);
}

void readCodes::obd_sim() {
    set_status_msg("value is [" + odb_curReplyMsg + "]");
}

void readCodes::load_the_codes() {
    if (P0_Codes.empty())
        P0_Codes = toolies.get_dictionary_from_resource("P0_Codes", "txt", " ")
                       .value_or(text_dictionary{});
}

std::string readCodes::look_upCode(std::string_view code, const text_dictionary& this_dict) {
    const auto found = this_dict.find(code);
    return std::string(found == this_dict.end() ? "Code nofound in our DB" : found->second);
}

codes_report readCodes::report() const {
    codes_report found;
    found.lamp = view_->lamp();
    if (count_known_)
        found.count = no_of_codes;
    found.codes_reported = codes_reported_;
    found.unread = unread_;
    found.read_on = view_->read_on();
    found.interface = trimmed(std::string_view(g_cur_interface), " \r\n>");
    found.protocol = trimmed(std::string_view(g_cur_protocol), " \r\n>");
    found.ecus = units_answered_;
    found.codes = codesReadArray;
    found.readiness = readinessFlagsArray;
    return found;
}

#include "actions.h"

#include "alerts.h"
#include "display_text.h"
#include "globalVars.h"
#include "live_view.h"
#include "more_parameters.h"
#include "parameters.h"
#include "run_times.h"
#include "status_line.h"
#include "system_log.h"
#include "thumbnail_strip.h"
#include "user_defaults.h"

#include <algorithm>
#include <utility>

namespace {

constexpr char ALL_POINTS[] = "All sampling points";
constexpr int FEWEST_POINTS = 20; // in the large chart when zoomed in fully
constexpr QSizeF DIAL_SIZE(364, 286);
constexpr char FOLLOW_CHART_KEY[] = "follow_the_chart";
// Requests on CAN, unless the settings say otherwise; negative: no limit.
constexpr char MOST_A_SECOND_KEY[] = "fast_requests_a_second";
constexpr int MOST_A_SECOND = 100;
constexpr std::size_t SENSORS_A_PAGE = 4;

std::string title_of_last(int points) {
    return "Charting last " + std::to_string(points) + " sampling points";
}

} // namespace

actions::actions(Ks_lite_delegate& delegate)
    : obd_screen(delegate), pictures_(toolies, delegate.doors().resources),
      frames_(delegate.doors().loop, [this] { draw_frame(); }), handshake_(*this),
      sampling_(*this, handshake_, *this),
      log_([this](const std::string& why) { log_failed(why); }) {
    view_ = std::make_unique<live_view>(delegate,
                                        block_units{live_pictures::chart_size(), DIAL_SIZE, 83});
    use_status_line(view_->statusLbl());
    awakeFromNib();
}

actions::~actions() = default;

QWidget* actions::view() {
    return view_->root();
}

void actions::awakeFromNib() {
    g_cur_task = TASK_RUN_LOG;
    g_cur_mode = TASK_RUN_LOG;
    next_step_idx = 0;
    view_->on_start_stop = [this] { runLogs(); };
    view_->on_run_selected = [this](int index) { comboBoxSelectionDidChange(index); };
    view_->on_zoom = [this](double v) { zoomSliderDidChange(v); };
    view_->on_more_parameters = [this] { choose_more_parameters(); };
    view_->on_next_sensors = [this] { show_next_sensors(); };
    view_->on_follow_chart = [this](bool yes) { follow_the_chart(yes); };
    view_->on_fast = [this](bool yes) {
        KS_delegate.doors().defaults.set_boolean(FAST_KEY, yes);
        KS_delegate.doors().defaults.synchronize();
    };
    view_->on_resized = [this] { frames_.request(); };
    view_->thumbiesMtrx().chosen = [this] { cellCicked(); };
    view_->thumbiesMtrx().exposed = [this] { frames_.request(); };
    describe_pictures();
    view_->show_follow_chart(KS_delegate.doors().defaults.boolean(FOLLOW_CHART_KEY));
    show_fast();
    rework_gui_objects(g_cur_task);
    set_status_msg("");
}

void actions::initial_setup() {
    const auto chosen = KS_delegate.doors().defaults.string_array(PIDS_ARRAY_KEY);
    if (!chosen)
        KS_delegate.doors().message_boxes.show(
            {"No PIDs seleted ... select them on the prefs option "});
    build_views(chosen.value_or(std::vector<std::string>{}));
    qCDebug(log_screens, "her ------------ 005");
}

void actions::choose_run(int task) {
    const auto choices = run_choices();
    const auto found = std::ranges::find(choices, task, &run_choice::task);
    if (found != choices.end())
        view_->select_run(static_cast<int>(found - choices.begin()));
}

void actions::comboBoxSelectionDidChange(int index) {
    if (index == l_prev_mode_idx)
        return;
    l_prev_mode_idx = index;
    leave_cur_op_gracefully("");
    view_->show_next_sensors(false);
    g_cur_task = run_choices()[static_cast<std::size_t>(index)].task;
    g_cur_mode = g_cur_task;
    rework_gui_objects(g_cur_task);
    draw_frame(); // at once: the pictures shown belong to another run
}

void actions::rework_gui_objects(int mode) {
    const auto parameters = make_live_run(mode, toolies)->parameters(KS_delegate.doors().defaults);
    if (mode == TASK_RUN_LOG && parameters && parameters->empty())
        toolies.myMsgBox("No PIDs selected ... select them on the prefs option ");
    if (mode == TASK_BOOST)
        g_cur_barom_press = STANDARD_BAROMETER;
    build_views(parameters.value_or(pids()));
    const bool more = pids().size() > SENSORS_A_PAGE;
    view_->show_next_sensors(mode == TASK_O2_SAMPLING && running() && more);
}

void actions::build_views(const std::vector<std::string>& pids) {
    cur_pid_showing = 0;
    view_->show_zoom(false);
    sampling_.set_parameters(pids);
    std::vector<QString> names;
    for (const std::string& pid : pids)
        names.push_back(display_text(parameter_name(toolies, pid)));
    // The first thumbnail is selected, and moves the first dial.
    cur_thumbs_selected.clear();
    gauge_1_idx = 0;
    gauge_2_idx = -1;
    pictures_.rebuild(pids);
    set_chart_title(ALL_POINTS);
    pictures_.set_points_shown(-1);
    reset_first_dial();
    view_->reset_zoom();
    view_->set_thumbnails(names);
    frames_.request();
}

void actions::runLogs() {
    if (running()) {
        leave_cur_op_gracefully("");
        return;
    }
    begin_task();
    next_step_idx = 0;
    view_->show_waity(true);
    work_out_log_file();
    view_->show_running(true);
    fast_level_.reset();
    run_a_log();
}

void actions::run_a_log() {
    sampling_.begin(make_live_run(g_cur_task, toolies));
    pictures_.forget_samples();
    frames_.request();
    next_step_idx = 0;
    set_status_msg("Starting run log");
    start_over_link();
}

void actions::start_over_link() {
    if (!work_over_link([this] { view_->show_waity(true); }))
        leave_cur_op_gracefully("");
}

void actions::ask_what_car_supports(std::function<void()> ended) {
    if (running())
        return;
    begin_task();
    scan_ended_ = std::move(ended);
    scan_completed_ = false;
    car_parameters_.reset();
    sampling_.sample_fast({});
    sampling_.begin(std::make_unique<supported_scan>(car_parameters_));
    next_step_idx = 0;
    view_->show_running(true);
    set_status_msg(localized("ui_more_asking"));
    start_over_link();
}

void actions::choose_more_parameters() {
    auto* dialog = new more_parameters(KS_delegate, *this, view_->root());
    dialog->chosen = [this] {
        if (running())
            leave_cur_op_gracefully("");
        rework_gui_objects(g_cur_task);
    };
    dialog->open();
}

void actions::work_task(int task, int step) {
    switch (task) {
    case TASK_RUN_LOG:
        work_out_log(step);
        break;
    case TASK_FUEL_ECONOMY:
        work_out_mpg(step);
        break;
    case TASK_BOOST:
        work_out_boost(step);
        break;
    case TASK_O2_SAMPLING:
        work_o2_layout(step);
        break;
    default:
        break;
    }
}

bool actions::takes_time_out(const std::string& text) {
    if (text != "Timeout" || g_obd_msg_state != S_FAIL)
        return false;
    if (task_running() && !awaits_owed_reply()) {
        odb_curReplyBuffyMsg += text; // precedes the next reply
        work_current_task();
    }
    return true;
}

void actions::another_car() {
    car_parameters_.reset();
    fast_helps_ = true;
    show_fast();
}

void actions::show_parameters(const std::vector<std::string>&) {
    rework_gui_objects(g_cur_task);
}

void actions::nothing_to_sample() {
    set_status_msg(localized("ui_live_no_sensors"));
    leave_cur_op_gracefully("");
}

void actions::questions_answered() {
    scan_completed_ = true;
    set_status_msg(localized(car_parameters_ ? "ui_more_told" : "ui_more_untold"));
    leave_cur_op_gracefully("");
}

void actions::cycles_begin() {
    choose_fast(); // not before it is known whether this is another car
    if (sampling_begins)
        sampling_begins();
}

// Replies come faster than they can be read: the status line is updated with the frames.
void actions::reply_came(const std::string& reply) {
    cur_err_msg = "Got proper reply: ( " + reply + ")";
    note_status(cur_err_msg);
    status_changed_ = true;
}

void actions::sample_filed(int index, double value) {
    pictures_.sample(index, value);
    frames_.request();
}

void actions::cycle_filed(std::size_t row) {
    if (sampling_.fast_most())
        fast_level_ = sampling_.fast_level().value_or(0);
    log_.write_cycle(samples(), row, sampling_.length());
    if (cycle_completed)
        cycle_completed(sampling_.cycle_values());
}

void actions::work_out_log_file() {
    log_failure_.clear();
    log_.forget();
    view_->show_log_mark("");
    if (KS_delegate.doors().defaults.boolean(LOG_RUNS_KEY))
        log_.begin(toolies, g_cur_task, g_vehicle_idx);
}

// The mark stays until the next run starts.
void actions::log_failed(const std::string& why) {
    log_failure_ = localized("ui_live_log_failed") + " " + why;
    view_->show_log_mark(log_failure_);
}

// The adapter settings changed by fast sampling are restored while the user continues; a task that
// begins meanwhile starts with a reset instead.
void actions::leave_cur_op_gracefully(const std::string&) {
    view_->show_waity(false);
    sampling_.end();
    log_.close();
    view_->show_running(false);
    end_task();
    show_fast();
    if (KS_delegate.adapter_changed())
        sampling_.restore_adapter();
    if (const auto done = std::exchange(scan_ended_, nullptr))
        done();
}

void actions::link_lost() {
    KS_delegate.give_up_on_replies(); // or its time-out would end a later run
    if (running())
        leave_cur_op_gracefully("");
}

void actions::fast_sampling_reduced(bool given_up) {
    constexpr run_loop::milliseconds STANDS{4000};
    set_status_msg(localized(given_up ? "ui_fast_given_up" : "ui_fast_level_down"));
    status_shown_ = KS_delegate.doors().loop.now() + STANDS; // before replies are shown again
}

void actions::choose_fast() {
    const user_defaults& defaults = KS_delegate.doors().defaults;
    const int most = defaults.integer(MOST_A_SECOND_KEY);
    const bool fast = defaults.boolean(FAST_KEY) && fast_helps_;
    sampling_.sample_fast(fast ? std::optional(most == 0 ? MOST_A_SECOND : std::max(most, 0))
                               : std::nullopt);
    fast_level_.reset();
    values_counted_ = 0;
    counted_at_ = {};
    show_fast();
}

void actions::fast_sampling_gains_nothing() {
    fast_helps_ = false;
    show_fast();
}

void actions::show_fast() {
    view_->show_fast(KS_delegate.doors().defaults.boolean(FAST_KEY), fast_helps_,
                     fast_helps_ ? "ui_fast_hint" : "ui_fast_no_use");
    if (!running())
        view_->show_rate({});
}

// Values per second, averaged over each second, and how they are requested.
void actions::show_rate() {
    constexpr run_loop::milliseconds SPAN{1000};
    const run_loop::milliseconds now = KS_delegate.doors().loop.now();
    if (!running() || now - counted_at_ < SPAN)
        return;
    const auto values = static_cast<double>(counted() - values_counted_);
    if (counted_at_.count() > 0) {
        const double rate = values * 1000 / static_cast<double>((now - counted_at_).count());
        QString text = display_text(localized("ui_fast_rate")).arg(rate, 0, 'f', 0);
        const std::string level = "ui_fast_level_" + std::to_string(fast_level_.value_or(0));
        if (sampling_.fast_most())
            text += QLatin1Char('\n') + display_text(localized(level));
        view_->show_rate(text);
    }
    values_counted_ = counted();
    counted_at_ = now;
}

void actions::set_status_msg(const std::string& message) {
    status_changed_ = false;
    obd_screen::set_status_msg(message);
}

void actions::cellCicked() {
    const std::set<int>& selected = view_->thumbiesMtrx().selected();
    if (selected.empty())
        return;
    const int shown_before = cur_pid_showing;
    // At the start the first thumbnail is selected without a click.
    const std::size_t selected_before = std::max<std::size_t>(cur_thumbs_selected.size(), 1);
    if (selected.size() == 1)
        cur_pid_showing = *selected.begin();
    gauge_1_idx = -1;
    for (int i = 0; i < static_cast<int>(pids().size()); ++i)
        pictures_.select_thumbnail(i, selected.contains(i));
    for (const int tag : selected)
        if (gauge_1_idx == -1)
            gauge_1_idx = -tag; // deliberately: only the first parameter moves the first dial
    cur_thumbs_selected = selected;
    choose_second_dial(selected, selected_before, shown_before);
    pictures_.set_large_chart(cur_pid_showing, cur_thumbs_selected);
    reset_first_dial();
    pictures_.use_realtime_labels(samples().rows() < 3);
    frames_.request();
}

// Shows the large chart's parameter. In a fuel run, and when it follows the chart, that parameter
// moves it; otherwise the one of `gauge_1_idx`.
bool actions::moves_first_dial() const {
    const bool follows = g_cur_task == TASK_FUEL_ECONOMY
                             ? pictures_.is_plotting(cur_pid_showing)
                             : KS_delegate.doors().defaults.boolean(FOLLOW_CHART_KEY);
    return follows || gauge_1_idx == cur_pid_showing;
}

void actions::reset_first_dial() {
    pictures_.reset_dial(0, cur_pid_showing, moves_first_dial());
}

// A parameter's name, value with its unit, and range.
QString actions::described(int index) const {
    const auto place = static_cast<std::size_t>(index);
    if (place >= pids().size())
        return {};
    const std::string& pid = pids()[place];
    const value_range range = parameter_range(toolies, pid);
    return display_text(localized("ui_live_reading"))
        .arg(display_text(parameter_name(toolies, pid)),
             display_text(pictures_.has_reply(index) ? sampling_.latest()[place][1] : "-"),
             QString::number(range.low),
             QString::number(range.high) + u' ' +
                 display_text(parameter_units(toolies, pid)).trimmed());
}

void actions::describe_pictures() {
    thumbnail_strip& strip = view_->thumbiesMtrx();
    strip.describe_cell = [this](int cell) { return described(cell); };
    strip.describe = [this] {
        QStringList all;
        for (int i = 0; i < static_cast<int>(pids().size()); ++i)
            all.append(described(i));
        return all.join(QStringLiteral("; "));
    };
    view_->chartFull().describe = [this] {
        return described(cur_pid_showing) + QStringLiteral("; ") + display_text(pictures_.title());
    };
    view_->gauge_uno().describe = [this] {
        return moves_first_dial() ? described(cur_pid_showing)
                                  : display_text(localized("ui_live_dial_unmoved"));
    };
    view_->gauge_dos().describe = [this] { return described(gauge_2_idx); };
}

void actions::follow_the_chart(bool yes) {
    KS_delegate.doors().defaults.set_boolean(FOLLOW_CHART_KEY, yes);
    KS_delegate.doors().defaults.synchronize();
    reset_first_dial();
    frames_.request();
}

void actions::choose_second_dial(const std::set<int>& selected, std::size_t selected_before,
                                 int shown_before) {
    if ((selected_before == 1 && selected.size() >= 2) ||
        (selected_before >= 3 && selected.size() == 2)) {
        if (selected.contains(shown_before))
            cur_pid_showing = shown_before;
        const auto other =
            std::ranges::find_if(selected, [this](int tag) { return tag != cur_pid_showing; });
        gauge_2_idx = *other;
        view_->show_second_dial(true);
        pictures_.reset_dial(1, gauge_2_idx, true);
    }
    if (selected.size() == 1) {
        view_->show_second_dial(false);
        gauge_2_idx = -1;
    }
}

void actions::zoomSliderDidChange(double v) {
    const auto share = static_cast<int>(static_cast<double>(samples().rows()) * v);
    const int points = v >= 1 ? -1 : std::max(share, FEWEST_POINTS);
    pictures_.set_points_shown(points);
    set_chart_title(points < 0 ? ALL_POINTS : title_of_last(points));
    frames_.request();
}

void actions::set_chart_title(const std::string& title) {
    pictures_.set_title(title);
    view_->chartFull().setAccessibleDescription(display_text(title));
}

void actions::clickIt() {
    view_->thumbiesMtrx().choose({0});
}

// Four sensors fit above the chart: scrolls to the next four and shows the first of them.
void actions::show_next_sensors() {
    const auto sensors = static_cast<int>(pids().size());
    const int page = static_cast<int>(SENSORS_A_PAGE);
    const int next = (cur_pid_showing / page + 1) * page;
    const int first = next < sensors ? next : 0;
    view_->thumbiesMtrx().choose({first});
    view_->scroll_to_thumbnail(first);
}

// During a run, no more often than it can be read.
void actions::show_status_throttled() {
    constexpr run_loop::milliseconds READING_TIME{100};
    const run_loop::milliseconds now = KS_delegate.doors().loop.now();
    if (!status_changed_)
        return;
    if (running() && now - status_shown_ < READING_TIME) {
        frames_.request();
        return;
    }
    status_changed_ = false;
    status_shown_ = now;
    show_status();
}

void actions::draw_frame() {
    show_status_throttled();
    show_rate();
    if (!view_->root()->isVisible())
        return; // becoming visible resizes the panel, which requests a frame
    view_->show_zoom(samples().rows() > FEWEST_POINTS);
    const auto length = sampling_.length();
    view_->show_length(display_text(
        length.count() > 0 ? length_text(static_cast<std::uint64_t>(length.count())) : ""));
    pictures_.draw(*view_, sampling_.samples(), sampling_.latest());
}

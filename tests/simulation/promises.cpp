#include "promises.h"

#include "actions.h"
#include "readCodes.h"
#include "reply_accumulator.h"
#include "report_screen.h"
#include "sample_reply.h"
#include "text.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <set>
#include <sstream>

using std::chrono::milliseconds;
using std::chrono::seconds;

namespace {

constexpr char NEVER_NESTED[] = "no step runs while another runs";
constexpr char SILENT_UNDER_ALERT[] = "no step runs while an alert is open";
constexpr char TRUE_CODES[] = "every code shown was sent by the car in answer to that request";
constexpr char NONE_MEANS_NONE[] = "what was lost of the codes is told, what came whole is shown";
constexpr char TRUE_VALUES[] = "every value shown was sent by the car in answer to that request";
constexpr char BOUNDED[] = "no buffer grows without bound";
constexpr char RESTS[] = "after the time-outs a screen is idle or sampling";
constexpr char NOTHING_LEFT[] = "no timer and no file outlives its screen";
constexpr char WHOLE_LOGS[] = "a log holds every announced cycle in complete lines";
constexpr char SAMPLES_AGAIN[] = "a healthy car's live data runs and stops after the faults";
constexpr char WORKS_AGAIN[] = "a healthy car's codes are read after the faults";

constexpr std::size_t CHUNK = 1024;
constexpr int TRANSCRIPT_BOUND = 4'000'000 + 2 * 1024;

std::string file_text(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

bool unusable(const std::string& shown) {
    return shown == "~" || shown == "N/A" || shown == "NOT FOUND";
}

std::string code_digits(const std::string& code) {
    const auto system = std::string("PCBU").find(code[0]);
    const unsigned first = static_cast<unsigned>(system) * 4 + static_cast<unsigned>(code[1] - '0');
    return "0123456789ABCDEF"[first & 15] + code.substr(2);
}

bool plain_in_log(char c) {
    return c >= ' ' && c <= '~' && c != ',';
}

// Whether a field of the log matches that reply: as long, the same where it is plain text, and the
// same answer or none.
bool field_matches(std::string_view field, std::string_view reply) {
    if (reply.empty())
        return field == "~";
    const auto alike = [](char in_log, char came) {
        return plain_in_log(in_log) && (in_log == came || !plain_in_log(came));
    };
    return std::ranges::equal(field, reply, alike) && answer_in(field) == answer_in(reply);
}

// Whether the text is one line for each cycle and one field for each of its replies.
bool log_matches(const std::string& text, const std::vector<std::vector<std::string>>& cycles) {
    std::istringstream log(text);
    std::string line;
    for (const auto& replies : cycles) {
        if (!std::getline(log, line) || log.eof())
            return false;
        const auto fields = split(line, ",");
        if (!std::ranges::equal(fields, replies, field_matches))
            return false;
    }
    return !std::getline(log, line);
}

std::optional<unsigned> hex_byte(const std::string& digits, std::size_t at) {
    if (digits.size() < at + 2 || !all_hex(digits.substr(at, 2)))
        return std::nullopt;
    return static_cast<unsigned>(std::stoul(digits.substr(at, 2), nullptr, 16));
}

bool digits_give_states(const std::string& digits, const std::vector<std::string>& states) {
    const auto b = hex_byte(digits, 2), c = hex_byte(digits, 4), d = hex_byte(digits, 6);
    if (!b || !c)
        return false;
    readiness_bytes bytes;
    bytes.continuous = static_cast<std::uint8_t>(*b);
    bytes.available = static_cast<std::uint8_t>(*c);
    bytes.not_complete = static_cast<std::uint8_t>(d.value_or(0));
    return monitor_states(bytes) == states;
}

} // namespace

promises::promises(application& app) : app_(app) {
    before_ = app.notifications.add_observer(OBD_EVENT,
                                             [this](const std::string&) { delivery_begins(); });
    app.far.must_be_silent = [this] { return app_.loop.held(); };
}

promises::~promises() {
    app_.notifications.remove_observer(before_);
    app_.notifications.remove_observer(after_);
}

void promises::started() {
    after_ =
        app_.notifications.add_observer(OBD_EVENT, [this](const std::string&) { delivery_ends(); });
    app_.delegate->screen_changed = [this] { screen_changed(); };
    app_.delegate->status_shown = [this](const std::string& text) {
        app_.trace.note("status", text);
        app_.trace.expect(!app_.loop.held(), SILENT_UNDER_ALERT, "status: " + text);
    };
}

void promises::delivery_begins() {
    app_.trace.expect(++depth_ == 1, NEVER_NESTED, "a chunk came while one was being handled");
    app_.trace.expect(!app_.loop.held(), SILENT_UNDER_ALERT, "a chunk was delivered");
    delivery_began_ = app_.ledger.moment();
}

void promises::delivery_ends() {
    --depth_;
    check_now();
}

void promises::screen_changed() {
    app_.trace.note("screen", app_.delegate->current_screen_name());
    codes_shown_.clear();
    status_shown_.clear();
    end_checked_ = false;
    states_shown_.clear();
    answers_seen_ = 0;
    if (auto* const live = app_.showing<actions>(ACTIONS_VIEW))
        live->cycle_completed = [this, live](const auto&) { cycle_announced(*live); };
}

void promises::check_now() {
    app_.trace.expect(odb_curReplyBuffyMsg.size() <= LONGEST_REPLY + CHUNK, BOUNDED,
                      "the accumulator holds " + std::to_string(odb_curReplyBuffyMsg.size()));
    app_.trace.expect(odb_curReplyMsg.size() <= LONGEST_REPLY + CHUNK, BOUNDED, "the last reply");
    if (auto* const codes = app_.showing<readCodes>(READ_CODES_VIEW))
        codes_are_true(*codes);
    else if (auto* const live = app_.showing<actions>(ACTIONS_VIEW))
        samples_are_true(*live);
    else if (auto* const report = app_.showing<report_screen>(REPORT_VIEW))
        report_is_true(*report);
    else if (app_.showing<screen_controller>(EXPERT_VIEW))
        app_.trace.expect(app_.find<QPlainTextEdit>("replyTxt")->document()->characterCount() <=
                              TRANSCRIPT_BOUND,
                          BOUNDED, "the transcript");
}

void promises::codes_are_true(readCodes& screen) {
    const codes_report shown = screen.report();
    none_means_none(screen, shown);
    std::string codes;
    for (const code_row& row : shown.codes)
        codes += " " + row[0];
    if (codes != codes_shown_) {
        app_.trace.note("shown", codes_shown_ = codes);
        for (const code_row& row : shown.codes)
            app_.trace.expect(code_was_sent(row[0]), TRUE_CODES, row[0]);
    }
    std::string status = shown.lamp + (shown.count ? std::to_string(*shown.count) : "-");
    if (status != status_shown_) {
        app_.trace.note("shown", status_shown_ = status);
        status_is_true(shown);
    }
    std::vector<std::string> states;
    for (const readiness_flag& flag : shown.readiness)
        states.push_back(flag.state);
    if (states != states_shown_) {
        states_shown_ = states;
        app_.trace.expect(states.empty() ||
                              car_reported([&](const truth& car) { return car.states == states; },
                                           [&](const std::string& digits) {
                                               return digits_give_states(digits, states);
                                           }),
                          TRUE_CODES, "readiness");
    }
}

// Once for each reading, when it ends. Old cars say "NO DATA" when nothing is stored.
void promises::none_means_none(readCodes& screen, const codes_report& shown) {
    if (end_checked_ == shown.codes_reported)
        return;
    end_checked_ = shown.codes_reported;
    if (!end_checked_)
        return;
    std::multiset<std::string> codes;
    for (const code_row& row : shown.codes)
        codes.insert(row[0]);
    const bool whole = shown.unread.empty();
    app_.trace.note("shown", whole ? "all was read" : "not all was read");
    app_.trace.expect(whole == screen.succeeded() &&
                          (whole || !screen.status().starts_with("Codes read!.")) &&
                          whole == app_.find<QWidget>("unreadMark")->isHidden(),
                      NONE_MEANS_NONE, "unread pieces against " + screen.status());
    const auto accounts_for_it = [&](const answer_slot& slot) {
        return slot.car.codes == codes || slot.passes_for_another() ||
               (codes.empty() && bare(slot.said).find("NODATA") != std::string::npos);
    };
    app_.trace.expect(!whole || app_.ledger.any_answer("03", task_began_, accounts_for_it),
                      NONE_MEANS_NONE, std::to_string(codes.size()) + " codes, nothing unread");
    for (const unread_piece& one : shown.unread)
        if (one.kind == unread_kind::left_out)
            codes.insert(one.text);
    const answer_slot* const last = app_.ledger.asked("03", app_.ledger.moment() + 1);
    app_.trace.expect(!last || last->written < task_began_ || !last->sound() ||
                          std::ranges::all_of(last->car.codes,
                                              [&](const std::string& code) {
                                                  return codes.contains(code) ||
                                                         !last->holds_digits(code_digits(
                                                             code)); // cut off by the adapter
                                              }),
                      NONE_MEANS_NONE, "a code that came whole is missing");
}

bool promises::code_was_sent(const std::string& code) const {
    return app_.ledger.any_answer("03", task_began_, [&](const answer_slot& slot) {
        return slot.car.codes.contains(code) ||
               (slot.damaged && slot.holds_digits(code_digits(code)));
    });
}

// Whether an answer to this task's status request says so: the car's own or, if it was changed on
// the way, the digits that arrived.
bool promises::car_reported(const std::function<bool(const truth&)>& fits,
                            const std::function<bool(const std::string& digits)>& reads) const {
    return app_.ledger.any_answer("0101", task_began_, [&](const answer_slot& slot) {
        return fits(slot.car) || (slot.damaged && std::ranges::any_of(slot.status_digits(), reads));
    });
}

// Whether the counts of some of the units add up to it: a unit that is not heard adds nothing.
bool promises::count_was_sent(int count) const {
    return app_.ledger.any_answer("0101", task_began_, [&](const answer_slot& slot) {
        std::set<int> sums{0};
        for (const std::string& digits : slot.status_digits())
            if (const auto byte = hex_byte(digits, 0); byte && (*byte & 0x80))
                for (const int sum : std::set<int>(sums))
                    sums.insert(sum + static_cast<int>(*byte & 0x7F));
        return sums.contains(count);
    });
}

void promises::status_is_true(const codes_report& shown) {
    if (shown.lamp == "ON" || shown.lamp == "OFF")
        app_.trace.expect(car_reported([&](const truth& car) { return car.lamp == shown.lamp; },
                                       [&](const std::string& digits) {
                                           const auto byte = hex_byte(digits, 0);
                                           return byte &&
                                                  ((*byte & 0x80) != 0) == (shown.lamp == "ON");
                                       }),
                          TRUE_CODES, "lamp " + shown.lamp);
    if (shown.count && !shown.lamp.empty())
        app_.trace.expect(count_was_sent(*shown.count), TRUE_CODES,
                          "count " + std::to_string(*shown.count));
}

// Whether an answer with the text has arrived since the parameter was last requested. Text after a
// prompt is deliberately kept for the next reply, so a duplicate answer in one piece may be that of
// the previous request. An adapter that answers another request with this parameter's value has
// reported it. For a combined request, or one with a digit, only the answer to that very request
// counts, and that once the next reply has shown it to be in step.
bool promises::was_answered(const std::string& pid, const std::string& text) const {
    const answer_slot* last = app_.ledger.asked_for(pid, delivery_began_);
    if (last && last->command != "01" + pid) {
        const answer_slot* const before = app_.ledger.asked_for(pid, last->written);
        if (before && app_.ledger.is_newest(*last, delivery_began_))
            last = before;
        return answers_parameter(text, pid) &&
               app_.ledger.any_answer("01", last->written, [&](const answer_slot& slot) {
                   return slot.written >= last->written && slot.tells(text.substr(2));
               });
    }
    const answer_slot* asked = app_.ledger.asked("01" + pid, delivery_began_);
    if (asked)
        if (const answer_slot* const before = app_.ledger.asked("01" + pid, asked->written))
            asked = before;
    return asked && answers_parameter(text, pid) &&
           app_.ledger.any_answer("01", asked->written, [&](const answer_slot& slot) {
               return slot.holds(text) || slot.tells(text.substr(2));
           });
}

bool promises::sample_was_sent(actions& screen, std::size_t row, std::size_t place,
                               const std::string& text) {
    const std::string& pid = screen.pids()[place];
    const auto usable = [&](std::size_t other) {
        return !unusable(
            screen.toolies.translateResponse(answer_in(screen.samples().text(row, other))));
    };
    if (pid == "E4") // computed from the two others
        return usable(1) && usable(2);
    if (pid == "E5")
        return app_.ledger.any_answer("010B", 0, [](const answer_slot&) { return true; });
    return was_answered(pid, text);
}

void promises::samples_are_true(actions& screen) {
    if (screen.requests_answered() == answers_seen_ || !screen.running())
        return;
    if (screen.requests_answered() < answers_seen_)
        checked_ = {0, 0}; // another run
    answers_seen_ = screen.requests_answered();
    sample_rows& rows = screen.samples();
    for (auto& [row, place] = checked_; row < rows.rows(); ++row, place = 0)
        for (; place < screen.pids().size(); ++place) {
            const std::string text(rows.text(row, place));
            if (text == "-1" && row + 1 == rows.rows())
                return; // to come
            if (text == "-1" || text == "~")
                continue;
            const std::string shown = screen.toolies.translateResponse(answer_in(text));
            const bool has_value = !unusable(shown) || !std::isnan(rows.value(row, place));
            if (has_value && !sample_was_sent(screen, row, place, text))
                app_.trace.broken(TRUE_VALUES,
                                  screen.pids()[place] + ": " + text + " shown as " + shown);
        }
}

// "44" anywhere in the reply deliberately counts as the confirmation.
void promises::box_opened(const std::string& message) {
    const auto confirms = [](const answer_slot& slot) { return slot.holds_digits("44"); };
    if (message.find("cleared sucessfully") != message.npos)
        app_.trace.expect(app_.ledger.any_answer("", task_began_, confirms),
                          "codes are told cleared when a unit has said so", message);
}

void promises::answers_again() {
    app_.defaults.set_string_array(PIDS_ARRAY_KEY, {"0C", "0D"}); // not those of the previous car
    app_.delegate->do_actions();
    app_.loop.settle();
    const auto& live = *app_.showing<actions>(ACTIONS_VIEW);
    app_.find<>("startStopBtn")->click();
    run_begins();
    const std::uint64_t before = live.requests_answered();
    app_.advance(seconds(5));
    app_.trace.expect(live.running() && live.requests_answered() > before + 3, SAMPLES_AGAIN,
                      std::to_string(live.requests_answered() - before) + " answers");
    app_.find<>("startStopBtn")->click();
    app_.trace.expect(!live.running(), SAMPLES_AGAIN, "stop");
    app_.advance(seconds(5));
    app_.delegate->do_expert();
    app_.loop.settle();
    app_.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("AT I"));
    app_.find<>("sendBtn")->click();
    app_.advance(seconds(1));
    const QString transcript = app_.find<QPlainTextEdit>("replyTxt")->toPlainText();
    app_.trace.expect(transcript.trimmed().endsWith(u'>') && transcript.contains(u"ELM327"),
                      "the console answers after the faults", transcript.toStdString());
}

// A new run with an old name replaces the file.
void promises::run_begins() {
    if (auto* const live = app_.showing<actions>(ACTIONS_VIEW); live && !live->log_path().empty())
        logs_[live->log_path()] = {};
}

void promises::forget_logs() {
    for (auto& [path, record] : logs_)
        record = {{}, false, true};
}

void promises::cycle_announced(actions& screen) {
    const std::string path = screen.log_path();
    if (path.empty())
        return;
    run_record& record = logs_[path];
    record.failed = record.failed || !screen.log_failure().empty();
    app_.trace.expect(record.failed || !record.removed, WHOLE_LOGS,
                      "a cycle was announced although its log has been removed");
    if (record.failed)
        return;
    sample_rows& rows = screen.samples();
    record.cycles.emplace_back();
    for (std::size_t place = 0; place < screen.pids().size(); ++place)
        record.cycles.back().emplace_back(rows.text(rows.rows() - 2, place));
}

void promises::logs_are_complete(const std::string& folder) {
    std::error_code failed;
    for (std::filesystem::directory_iterator entry(folder + "/data/loggies", failed), end;
         !failed && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (name.ends_with(".csv") || name.ends_with(".export.txt") ||
            (name.starts_with("log_") && name.ends_with(".txt")))
            continue;
        const std::string text = file_text(entry->path().string());
        app_.trace.note("log", name + " " + std::to_string(text.size()));
        app_.trace.expect(text.empty() || text.ends_with('\n'), WHOLE_LOGS,
                          name + " ends: " + text);
    }
    for (const auto& [path, record] : logs_) {
        const std::string text = file_text(path);
        app_.trace.expect(record.removed || log_matches(text, record.cycles), WHOLE_LOGS,
                          path + " of " + std::to_string(record.cycles.size()) +
                              " cycles: " + text);
    }
}

void promises::come_to_rest() {
    // The longest time-out of all is that of a run: 3000 s.
    const milliseconds end = app_.loop.now() + seconds(2 * 3000 + 200);
    auto* const live = app_.showing<actions>(ACTIONS_VIEW);
    int calm = 0, repeated = 0, talking = 0;
    while (app_.loop.now() < end && talking < 60 && !app_.trace.failed()) {
        const std::uint64_t effects = app_.trace.effects();
        const std::size_t commands = app_.ledger.commands();
        const std::uint64_t answered = live ? live->requests_answered() : 0;
        app_.advance(seconds(5));
        if (live && live->running() && live->requests_answered() > answered + 2)
            return; // sampling
        if (app_.ledger.commands() == commands && !app_.delegate->anything_outstanding() &&
            !(live && live->running()) && ++calm == 2)
            return; // idle
        talking += app_.ledger.commands() != commands;
        // An adapter that never understands "AT DP" is deliberately asked forever, with a message
        // each time.
        if (app_.ledger.last().command == "ATDP" || app_.ledger.last().command == "ATSPA3")
            repeated += app_.trace.effects() > effects;
        if (repeated > 20)
            return;
    }
    const bool half_a_reply = app_.delegate->replies().awaited_since().count() != 0 &&
                              app_.ledger.moment() > app_.ledger.last().written;
    // The first chunk of a reply ends its time-out: if its prompt never comes, only the user can
    // act. The stall hint counts the seconds.
    app_.trace.expect(half_a_reply, RESTS, app_.delegate->current_screen_name());
}

void promises::nothing_outlives_its_screen() {
    for (const milliseconds due : app_.far.timers_of_others())
        app_.trace.broken(NOTHING_LEFT, "a timer is armed for " + std::to_string(due.count()));
    std::error_code failed;
    for (std::filesystem::directory_iterator entry("/proc/self/fd", failed), end;
         !failed && entry != end; entry.increment(failed)) {
        std::error_code gone;
        const std::string target = std::filesystem::read_symlink(entry->path(), gone).string();
        app_.trace.expect(target.find("/loggies/") == std::string::npos, NOTHING_LEFT,
                          target + " is open");
    }
}

void promises::shows(const truth& car) {
    auto* const screen = app_.showing<readCodes>(READ_CODES_VIEW);
    const codes_report shown = screen->report();
    std::multiset<std::string> codes;
    for (const code_row& row : shown.codes)
        codes.insert(row[0]);
    std::vector<std::string> states;
    for (const readiness_flag& flag : shown.readiness)
        states.push_back(flag.state);
    app_.trace.expect(screen->succeeded(), WORKS_AGAIN, "the task: " + screen->status());
    app_.trace.expect(codes == car.codes, WORKS_AGAIN, "codes: " + std::to_string(codes.size()));
    app_.trace.expect(shown.lamp == car.lamp, WORKS_AGAIN, "lamp " + shown.lamp);
    app_.trace.expect(shown.count == car.count, WORKS_AGAIN, "count");
    app_.trace.expect(states == car.states, WORKS_AGAIN, "readiness");
}

#include "bundle.h"
#include "car_task.h"
#include "command_functions.h"
#include "commands.h"
#include "Ks_lite_delegate.h"
#include "report_json.h"
#include "report_screen.h"
#include "saved_report.h"

#include <cstdio>
#include <ostream>

namespace {

// The target of the rendering: a file, or standard output.
struct wanted_rendering {
    rendering as = rendering::text;
    std::string file;
};

wanted_rendering wanted_of(const cli_request& asked) {
    if (!asked.report_html.empty())
        return {rendering::html, asked.report_html};
    if (!asked.report_pdf.empty())
        return {rendering::pdf, asked.report_pdf};
    return {asked.json ? rendering::json : rendering::text, {}};
}

paper_size paper_of(const cli_request& asked) {
    return asked.paper.empty()   ? usual_paper()
           : asked.paper == "a4" ? paper_size::a4
                                 : paper_size::letter;
}

// Prints, or writes to the file; `why` is set if that failed.
QByteArray give(const car_report& report, report_sheet sheet, const cli_request& asked,
                std::string& why) {
    if (!asked.report_sections.empty())
        sheet.keep(asked.report_sections);
    const wanted_rendering wanted = wanted_of(asked);
    const QByteArray bytes = rendered(report, sheet, wanted.as, paper_of(asked));
    if (wanted.file.empty())
        return bytes;
    if (const auto failure = write_whole(wanted.file, bytes))
        why = "cannot write " + wanted.file + ": " + *failure;
    return {};
}

void print_bytes(const QByteArray& bytes) {
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stdout);
}

class report_command final : public car_task {
  public:
    using car_task::car_task;

    void start() override {
        delegate_.do_report();
        screen_ = static_cast<report_screen*>(delegate_.current_screen());
        screen_->read_clicked();
    }
    bool over() override {
        const bool goes_on = screen_->reading() || delegate_.anything_outstanding();
        if (screen_->task_running() && goes_on)
            return false;
        take_report();
        return true;
    }
    bool succeeded() const override { return reported_ && why_.empty(); }
    std::string what_went_wrong() const override { return why_; }
    // The reader has its own time limits, for each question and overall.
    bool has_no_time_limit() const override { return true; }
    void print(bool, const conversation_log&) override {
        if (screen_->reading()) // prints what was read so far
            screen_->cancel_clicked();
        take_report();
        print_bytes(printed_);
        if (reported_ && !all_reported_)
            std::fputs("kestrom: the car did not tell all; the end of the report says what and "
                       "why\n",
                       stderr);
    }

  private:
    void take_report() {
        const car_report* report = screen_->report();
        if (reported_ || !report || !report->transcript.car_answered())
            return;
        reported_ = true;
        all_reported_ = report->all_reported();
        if (asked_.hide_vin) // in a picture of the window too
            screen_->hide_vin();
        report = screen_->report();
        printed_ = give(*report, sheet_of(*report, delegate_.doors().resources), asked_, why_);
    }

    report_screen* screen_ = nullptr;
    bool reported_ = false, all_reported_ = false;
    QByteArray printed_;
    std::string why_;
};

std::optional<car_report> opened(const desk& work, const std::string& file) {
    std::string why;
    const auto document = read_whole(file, why);
    auto transcript = document ? open_report(*document, why) : std::nullopt;
    if (!transcript) {
        work.err << "kestrom: cannot open " << file << ": " << why << "\n";
        return std::nullopt;
    }
    return report_of(work.asked.hide_vin ? without_vin(*std::move(transcript))
                                         : *std::move(transcript),
                     work.toolies);
}

} // namespace

void check_report(const cli_request& asked) {
    if (asked.compare != (asked.arguments.size() == 2) || asked.arguments.size() == 1)
        throw usage_error("--compare takes two saved reports, and nothing else does");
    if (asked.json && !asked.report_sections.empty())
        throw usage_error("--only leaves out sections of a sheet; JSON is always whole");
    if (asked.json && asked.compare)
        throw usage_error("--compare makes a sheet, not JSON");
    if (!asked.paper.empty() && asked.report_pdf.empty())
        throw usage_error("--paper belongs to --pdf");
    if ((!asked.report_opened.empty() || asked.compare) && (asked.record || asked.screenshot))
        throw usage_error("a saved report talks to no adapter: there is nothing to record or show");
}

std::unique_ptr<car_task> begin_report(const car_task_doors& doors) {
    return std::make_unique<report_command>(doors);
}

int run_saved_report(const desk& work) {
    const bool compares = work.asked.compare;
    const auto first = opened(work, compares ? work.asked.arguments[0] : work.asked.report_opened);
    const auto second = compares && first ? opened(work, work.asked.arguments[1]) : std::nullopt;
    if (!first || (compares && !second))
        return 1;
    const report_sheet sheet = compares ? comparison_of(*first, *second, work.resources)
                                        : sheet_of(*first, work.resources);
    std::string why;
    print_bytes(give(compares ? *second : *first, sheet, work.asked, why));
    if (!why.empty())
        work.err << "kestrom: " << why << "\n";
    return why.empty() ? 0 : 1;
}

#include "car_task.h"
#include "command_functions.h"
#include "console_alerts.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "readCodes.h"
#include "text.h"
#include "unread_text.h"

#include <cstdio>
#include <nlohmann/json.hpp>

namespace {

ordered_json as_json(const codes_report& report) {
    ordered_json codes = ordered_json::array(), readiness = codes, unread = codes;
    for (const code_row& row : report.codes)
        codes.push_back({{"code", row[0]}, {"description", trimmed(row[1])}});
    for (const readiness_flag& flag : report.readiness)
        readiness.push_back(
            {{"state", flag.state}, {"monitor", trimmed(flag.monitor)}, {"kind", flag.kind}});
    for (const unread_piece& one : report.unread)
        unread.push_back({{"kind", unread_name(one.kind)}, {"text", one.text}});
    return {{"lamp", report.lamp},
            {"count", report.count ? ordered_json(*report.count) : ordered_json()},
            {"read_on", report.read_on},
            {"interface", report.interface},
            {"protocol", report.protocol},
            {"ecus", report.ecus},
            {"codes", codes},
            {"unread_count", report.unread.size()},
            {"unread", unread},
            {"readiness", readiness}};
}

void print_text(const codes_report& report) {
    std::printf("Adapter      %s\nProtocol     %s\nLamp         %s\n",
                printable(report.interface).c_str(), printable(report.protocol).c_str(),
                report.lamp.c_str());
    std::printf("Codes        %s\nRead on      %s\nUnits        %d\n",
                report.count ? std::to_string(*report.count).c_str() : "N/A",
                report.read_on.c_str(), report.ecus);
    std::printf("\nTrouble codes\n");
    for (const code_row& row : report.codes)
        std::printf("  %-7s%s\n", row[0].c_str(), std::string(trimmed(row[1])).c_str());
    if (!report.unread.empty())
        std::printf("  not read whole\n");
    else if (report.codes.empty())
        std::printf("  none\n");
    std::printf("\nReadiness monitors\n");
    for (const readiness_flag& flag : report.readiness)
        std::printf("  %-5s%-48s%s\n", flag.state.c_str(), flag.monitor.c_str(), flag.kind.c_str());
    if (report.readiness.empty())
        std::printf("  not reported\n");
}

class codes_command final : public car_task {
  public:
    using car_task::car_task;

    void start() override {
        delegate_.do_read_codes();
        screen_ = static_cast<readCodes*>(delegate_.current_screen());
        if (asked_.command == "clear")
            screen_->clearCodes_clicked();
        else
            screen_->readCodes_clicked();
    }
    bool over() override { return !screen_->task_running() || !delegate_.anything_outstanding(); }
    bool succeeded() const override { return screen_->succeeded(); }
    std::string what_went_wrong() const override {
        return messages_.last_printed().empty()
                   ? unread_causes(delegate_.doors().resources, screen_->report().unread)
                   : std::string();
    }
    bool is_result(const std::string& message) const override {
        return screen_ && screen_->succeeded() && message == screen_->status();
    }
    void print(bool succeeded, const conversation_log& log) override {
        const codes_report report = screen_->report();
        if (asked_.json) {
            print_conversation(as_json(report), screen_->status(), log);
        } else if (report.codes_reported) {
            print_text(report);
            if (succeeded && report.count &&
                static_cast<std::size_t>(*report.count) != report.codes.size())
                std::fprintf(stderr, "kestrom: %s\n", printable(screen_->status()).c_str());
        } else if (succeeded) {
            std::printf("%s\n", screen_->status().c_str());
        }
    }

  private:
    readCodes* screen_ = nullptr;
};

} // namespace

std::unique_ptr<car_task> begin_codes(const car_task_doors& doors) {
    return std::make_unique<codes_command>(doors);
}

void check_clear(const cli_request& asked) {
    if (!asked.yes)
        throw usage_error("clear erases codes and test results in the car: repeat it with --yes");
}

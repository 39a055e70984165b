// Reads a report from an adapter that gives these replies, one after the other, and then falls
// silent. The report is saved and reopened unchanged.
#include "car_reader.h"

#include "../tests/support/virtual_run_loop.h"
#include "fuzz_one.h"
#include "fuzz_toolkit.h"
#include "report_json.h"
#include "sheet.h"

#include <algorithm>

namespace {

constexpr int MOST_QUESTIONS = 4000; // with all tries

class scripted_door final : public adapter_door {
  public:
    scripted_door(run_loop& loop, std::string_view replies) : loop_(loop), replies_(replies) {}

    void ask(const std::string&, run_loop::milliseconds bound, answered on_reply) override {
        REQUIRE(++asked_ < MOST_QUESTIONS);
        std::optional<std::string> reply;
        if (const std::size_t end = replies_.find('>'); end != replies_.npos) {
            reply = replies_.substr(0, end + 1);
            replies_.remove_prefix(end + 1);
        }
        const auto takes = reply ? run_loop::milliseconds(10) : bound;
        call_ = loop_.after(takes, [on_reply = std::move(on_reply), reply] { on_reply(reply); });
    }
    void give_up() override { loop_.cancel(call_); }

  private:
    run_loop& loop_;
    std::string_view replies_;
    run_loop::timer_id call_ = 0;
    int asked_ = 0;
};

} // namespace

int fuzz_one(std::span<const std::uint8_t> bytes) {
    static const fuzz_toolkit tools(true);
    virtual_run_loop loop;
    scripted_door door(loop, as_text(bytes));
    car_reader reader(loop, door);
    reader.start({});
    loop.advance(2 * car_reader::LONGEST_READING);
    REQUIRE(!reader.running());
    const car_report report = report_of(reader.transcript(), tools.decoder);
    sheet_text(sheet_of(report, tools.resources));
    const std::string saved = report_json(report);
    std::string why;
    const auto opened = open_report(saved, why);
    REQUIRE(opened);
    REQUIRE(report_json(report_of(*opened, tools.decoder)) == saved);
    return 0;
}

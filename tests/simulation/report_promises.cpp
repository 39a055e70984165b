// The invariants of a vehicle report, whatever happened while it was read.
#include "promises.h"
#include "report_screen.h"

#include <algorithm>

namespace {

constexpr char NOTHING_INVENTED[] = "a report holds nothing that was not sent in answer to it";
constexpr char NOTHING_LOST[] = "what came whole and in time of an answer stands in the report";

std::string positive(std::string request) {
    request[0] = static_cast<char>(request[0] + 4);
    return request;
}

} // namespace

// Once for each reading, when it ends.
void promises::report_is_true(const report_screen& screen) {
    const car_report* report = screen.reading() ? nullptr : screen.report();
    if (!report || report_checked_)
        return;
    report_checked_ = true;
    app_.trace.note("shown", "a report of " + std::to_string(report->transcript.pieces.size()) +
                                 " pieces, end " +
                                 std::to_string(static_cast<int>(report->transcript.end)));
    for (const asked_piece& piece : report->transcript.pieces)
        if (!is_adapter_command(piece.request)) {
            nothing_is_invented(piece);
            nothing_is_lost(piece);
        }
}

void promises::nothing_is_invented(const asked_piece& piece) {
    for (const auto* list : {&piece.answers, &piece.refusals})
        for (const unit_reply& one : *list)
            app_.trace.expect(app_.ledger.any_answer(piece.request, report_began_,
                                                     [&](const answer_slot& slot) {
                                                         return slot.command == piece.request &&
                                                                (slot.tells(one.data) ||
                                                                 slot.holds_digits(one.data));
                                                     }),
                              NOTHING_INVENTED, piece.request + ": " + one.unit + " " + one.data);
}

// Checks the latest answer to that request.
void promises::nothing_is_lost(const asked_piece& piece) {
    const answer_slot* const slot = app_.ledger.asked(piece.request, app_.ledger.moment() + 1);
    if (piece.timed_out || !slot || slot->written < report_began_ || !slot->sound() ||
        !app_.ledger.in_time(*slot))
        return;
    for (const std::string& message : slot->messages())
        app_.trace.expect(!message.starts_with(positive(piece.request)) ||
                              std::ranges::any_of(piece.answers,
                                                  [&](const unit_reply& one) {
                                                      return message.starts_with(one.data);
                                                  }),
                          NOTHING_LOST, piece.request + ": " + message);
}

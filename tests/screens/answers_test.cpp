// What is shown and what is said of answers to "01 01" and "03": each line of answers.rows is one
// conversation with the trouble-codes screen, from the handshake on.
#include "app_harness.h"
#include "qt_warnings.h"
#include "readCodes.h"
#include "rows.h"
#include "test_paths.h"
#include "text.h"
#include "unread_text.h"

#include <QLabel>
#include <QTableView>

#include <gtest/gtest.h>
#include <map>

namespace {

struct conversation {
    std::string name, bus, status, codes, lamp_and_count, shown, unread, exit;
};

std::string adapter_text(const std::string& column) {
    return replace_all(column, "/", "\r") + "\r\r>";
}

std::vector<conversation> conversations() {
    std::vector<conversation> all;
    for (const table_row& row : read_rows(test_data("answers.rows"))) {
        const auto& f = row.fields;
        all.push_back({f[0], f[1], f[2], f[3], f[4], f[5], f[6], f[7]});
    }
    return all;
}

class answers : public testing::TestWithParam<conversation> {
  protected:
    // Presses the button and answers until nothing more is asked.
    void hold_conversation(const conversation& talk) {
        static const std::map<std::string, std::string> BUSES = {
            {"can", "7E8 06 41 00 BE 1F A8 12"},
            {"two", "7E8 06 41 00 BE 1F A8 12\r7E9 06 41 00 80 00 00 01"},
            {"can29", "18 DA F1 10 06 41 00 BE 1F A8 12"},
            {"iso", "48 6B 10 41 00 BE 1F A8 12 9B"},
            {"kwp", "80 F1 10 06 41 00 BE 1F A8 12 5F"},
            {"bare", "41 00 BE 1F A8 12"}};
        const std::size_t colon = talk.bus.find(':');
        const std::string named = colon == std::string::npos ? "" : talk.bus.substr(colon + 1);
        bool named_once = named.empty();
        app.delegate->do_read_codes();
        app.press("readCodes");
        app.connect();
        for (std::string asked; !(asked = app.sent()).empty();) {
            if (asked == "AT Z\r" || asked == "AT I\r")
                app.receive("ELM327 v1.5\r\r>");
            else if (asked == "AT DP\r")
                app.receive(std::exchange(named_once, true) ? "AUTO\r\r>" : named + "\r\r>");
            else if (asked == "01 00\r")
                app.receive(adapter_text(BUSES.at(talk.bus.substr(0, colon))));
            else if (asked == "01 01\r")
                app.receive(adapter_text(talk.status));
            else if (asked == "03\r")
                app.receive(adapter_text(talk.codes));
            else
                app.receive("OK\r\r>");
        }
    }
    app_harness app;
};

} // namespace

TEST_P(answers, are_shown_and_what_is_unread_is_told) {
    const conversation& talk = GetParam();
    hold_conversation(talk);
    const auto& screen = static_cast<readCodes&>(*app.delegate->current_screen());
    const codes_report report = screen.report();
    std::string shown, unread;
    for (const code_row& row : report.codes)
        shown += (shown.empty() ? "" : " ") + row[0];
    for (const unread_piece& one : report.unread)
        unread += (unread.empty() ? "" : " ") + std::string(unread_name(one.kind));
    EXPECT_EQ(shown, talk.shown);
    EXPECT_EQ(unread, talk.unread);
    EXPECT_EQ(report.lamp + " " + (report.count ? std::to_string(*report.count) : "N/A"),
              talk.lamp_and_count);
    EXPECT_EQ(screen.succeeded(), talk.exit == "0");

    // With anything unread, neither the table nor the status line may say that all is well.
    const bool as_counted =
        unread.empty() && report.count && std::cmp_equal(*report.count, report.codes.size());
    EXPECT_EQ(app.last_status(), as_counted ? "Codes read!. Scroll for full description"
                                            : "Codes read...but different no of codes recvd");
    const auto* bar = app.find<QLabel>("unreadMark");
    EXPECT_EQ(bar->isHidden(), unread.empty());
    EXPECT_TRUE(unread.empty() || bar->text().contains(QString::fromStdString(
                                      unread_causes(app.resources, report.unread))));
    const auto hints = app.find("codesReadTableView")->findChildren<QLabel*>();
    ASSERT_EQ(hints.size(), 1);
    EXPECT_EQ(hints[0]->text().toStdString() == app.resources.localized("ui_codes_none"),
              unread.empty() && report.count.value_or(0) == 0);

    // The unit that sent a code, where its header came.
    const QAbstractItemModel& rows = *app.find<QTableView>("codesReadTableView")->model();
    for (int i = 0; i < rows.rowCount(); ++i) {
        const QString told = rows.index(i, 1).data(Qt::ToolTipRole).toString();
        EXPECT_EQ(!told.isEmpty(),
                  talk.name.starts_with("headers stay on") || talk.name == "J1850 checksum");
        if (talk.name == "headers stay on, frames in turns") {
            EXPECT_EQ(told.toStdString(), i < 4 ? "From control unit: Engine (7E8)"
                                                : "From control unit: Transmission (7E9)");
        }
    }
}

INSTANTIATE_TEST_SUITE_P(all, answers, testing::ValuesIn(conversations()), [](const auto& row) {
    std::string name = row.param.name;
    for (char& c : name)
        if (!std::isalnum(static_cast<unsigned char>(c)))
            c = '_';
    return name;
});

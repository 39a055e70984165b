// What the link and the shell do that no screen shows (the rest: tests/screens/data).
#include "app_harness.h"
#include "full_disk.h"
#include "qt_warnings.h"

#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>
#include <optional>
#include <sstream>

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

TEST(link, a_flood_without_line_ends_is_broken_into_lines) {
    app_harness app;
    app.delegate->do_expert();
    app.delegate->openInterfaceConnection();
    app.connect();
    app.receive(std::string(200'000, 'F'));
    std::istringstream lines(app.find<QPlainTextEdit>("replyTxt")->toPlainText().toStdString());
    std::size_t longest = 0;
    for (std::string line; std::getline(lines, line);)
        longest = std::max(longest, line.size());
    EXPECT_LT(longest, 10'000);
}

TEST(link, over_a_stream_pair_that_cannot_be_made_is_silence) {
    app_harness app;
    app.delegate->do_expert();
    app.delegate->doors().make_streams = [](const std::string&, long) { return nullptr; };
    app.delegate->openInterfaceConnection();
    app.loop.advance(seconds(30));
    EXPECT_EQ(app.last_status(), "Trying: 10.0.0.9:35000 ");
}

TEST(link, over_bluetooth_takes_lengths_of_16_bits_and_asks_for_its_service_with_the_loop_held) {
    app_harness app(app_harness::first_start);
    bool ran = false;
    app.bluetooth.while_choosing = [&] {
        app.loop.after(milliseconds(0), [&] { ran = true; });
        app.loop.advance(seconds(30));
        EXPECT_FALSE(ran);
    };
    app.delegate->openInterfaceConnection();
    app.bluetooth.open_completes();
    app.loop.settle();
    EXPECT_TRUE(ran);
    EXPECT_EQ(app.bluetooth.allowed, std::vector<std::uint16_t>{0x1101});
    for (const std::size_t length : {0u, 65534u, 65535u, 65536u})
        app.delegate->sendOBDcmd(std::string(length, 'x'));
    std::vector<std::size_t> lengths;
    for (const std::string& bytes : app.bluetooth.written)
        lengths.push_back(bytes.size());
    EXPECT_EQ(lengths, (std::vector<std::size_t>{1, 65535, 0, 1}));
}

TEST(screens, an_old_screen_lives_until_the_run_loop_lets_it_go) {
    app_harness app;
    app.delegate->do_read_codes();
    app.delegate->status_shown =
        [&](const std::string& text) { // switches under the screen's own operation
            if (text.starts_with("Trying"))
                app.delegate->do_prefs();
        };
    app.press("readCodes");
    app.loop.settle();
    EXPECT_EQ(app.delegate->current_screen_name(), PREFS_VIEW);
}

TEST(preferences, that_cannot_be_saved_are_told_and_used_all_the_same) {
    app_harness app;
    app.delegate->do_prefs();
    app.press("interfaceBluetooth");
    expect_warning("could not be written");
    {
        const full_disk full(0);
        app.delegate->do_expert();
    }
    ASSERT_EQ(app.messages.shown.size(), 1u);
    const alert_request& box = app.messages.shown[0];
    EXPECT_TRUE(box.message.starts_with(app.resources.localized("ui_settings_not_saved")));
    EXPECT_TRUE(box.message.ends_with(app.defaults.path()));
    EXPECT_EQ(g_connect_with, KS_USE_BT);
    EXPECT_EQ(app.defaults.integer(KS_INTERFACE_KEY), KS_USE_BT);
}

// Spoilt answers are asked for again; one command that was not taken leaves the adapter in doubt.
TEST(put_back, is_well_when_every_command_was_taken) {
    static constexpr std::string_view BACK[] = {"AT ST 32", "AT H0"};
    const struct {
        const char* replies; // each up to ">"; the first one is owed to the screen
        const char* sent;
        bool well;
    } rows[] = {{"ELM>OK>OK>", "AT ST 32 AT H0 ", true},
                {"ELM>?>OK>", "AT ST 32 AT H0 ", true},
                {"ELM>@#>@#>OK>OK>", "AT ST 32 AT ST 32 AT ST 32 AT H0 ", true},
                {"ELM>@#>@#>@#>OK>", "AT ST 32 AT ST 32 AT ST 32 AT H0 ", false}};
    for (const auto& row : rows) {
        app_harness app;
        app.delegate->do_expert();
        app.find<QLineEdit>("cmdTxt")->setText(QStringLiteral("AT I"));
        app.press("sendBtn");
        app.connect();
        EXPECT_EQ(app.sent(), "AT I\r");
        app.delegate->restore_later(BACK);
        std::optional<bool> well;
        app.delegate->restore_adapter([&](bool taken) { well = taken; });
        std::string sent;
        std::istringstream replies(row.replies);
        for (std::string reply; std::getline(replies, reply, '>');) {
            EXPECT_FALSE(well) << row.replies;
            EXPECT_TRUE(app.wire().written.empty()) << row.replies;
            app.receive(reply + "\r\r>");
            while (!app.wire().written.empty()) {
                sent += app.sent();
                sent.back() = ' ';
            }
        }
        EXPECT_EQ(sent, row.sent) << row.replies;
        EXPECT_EQ(well, row.well) << row.replies;
        EXPECT_EQ(app.delegate->adapter_changed(), !row.well) << row.replies;
    }
}

} // namespace

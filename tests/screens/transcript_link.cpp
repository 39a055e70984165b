// The verbs about settings, link and adapter.
#include "globalVars.h"
#include "qt_warnings.h"
#include "transcript.h"
#include "transports.h"

namespace {

// [bluetooth] / KEY VALUE / ...: another start, with these settings; over Wi-Fi, or as the first of
// all
void start(transcript& t, const std::string& text) {
    t.expect_nothing_left();
    t.start([&](user_defaults& store) {
        const auto settings = parts(text);
        if (settings[0] != "bluetooth")
            app_harness::use_wifi(store);
        for (std::size_t i = 1; i < settings.size(); ++i) {
            const auto words = split(settings[i], 2);
            words[0] == PIDS_ARRAY_KEY ? store.set_string_array(words[0], split(words[1], 2))
                                       : store.set_string(words[0], words[1]);
        }
    });
}

void happens(transcript& t, int event, stream_side side = stream_side::input) {
    scripted_stream_pair::raise(t.app->wire(), t.app->loop, event, side);
    t.app->loop.settle();
}

// "opened" at one side, "lost", or the words of a failure
void connection(transcript& t, const std::string& text) {
    if (text == "opened" || text == "opened as well")
        return happens(t, STREAM_OPEN_COMPLETED,
                       text == "opened" ? stream_side::input : stream_side::output);
    expect_warning(text == "lost" ? "Disconected" : text);
    text == "lost" ? happens(t, STREAM_END) : t.app->fail(text);
}

// "opened", "closed", or the number of the error with which it did not open
void channel(transcript& t, const std::string& text) {
    text == "closed" ? t.app->bluetooth.drop()
                     : t.app->bluetooth.open_completes(text == "opened" ? 0 : std::stoi(text));
    t.app->loop.settle();
}

void sent(transcript& t, const std::string& text) {
    std::deque<std::string>& over_bluetooth = t.app->bluetooth.written;
    if (over_bluetooth.empty()) {
        EXPECT_EQ(t.app->sent(), unescaped(text));
    } else {
        EXPECT_EQ(over_bluetooth.front(), unescaped(text));
        over_bluetooth.pop_front();
    }
}

void received(transcript& t, const std::string& text) {
    if (!connected_2_BT_interface)
        return t.app->receive(unescaped(text));
    t.app->bluetooth.receive(unescaped(text));
    t.app->loop.settle();
}

// COUNT SENT / RECEIVED / SENT / RECEIVED ...: the same exchange so many times
void rounds(transcript& t, const std::string& text) {
    const auto words = split(text, 2);
    const auto turns = parts(words[1]);
    for (int round = std::stoi(words[0]); round > 0; --round)
        for (std::size_t turn = 0; turn < turns.size(); ++turn)
            turn % 2 == 0 ? sent(t, turns[turn]) : received(t, turns[turn]);
}

void plug(transcript& t, const std::string& text) {
    std::vector<serial_port_entry> ports;
    for (const std::string& one : parts(text)) {
        const std::size_t name = one.find('|'), maker = one.rfind('|');
        ports.push_back({one.substr(0, name), unescaped(one.substr(name + 1, maker - name - 1)),
                         one.substr(maker + 1)});
    }
    t.app->delegate->doors().serial_ports = [ports] { return ports; };
}

// All that is remembered of an adapter and its car: "it" is learnt, and later known, or nothing
void learns(transcript&, const std::string&) {
    connected_2_KS_interface = KS_did_connect_2_car = true;
    g_cur_interface = std::string_view("ELM327");
    g_cur_protocol = std::string_view("AUTO");
    g_bus_form = bus_form::can;
    g_Supported_obd_mask_0 = g_Supported_obd_mask_2 = std::string_view("FFFFFFFF");
    g_this_delta = 3000;
}
void knows(transcript&, const std::string& text) {
    const bool nothing = text == "nothing";
    EXPECT_NE(connected_2_KS_interface, nothing);
    EXPECT_NE(KS_did_connect_2_car, nothing);
    EXPECT_EQ(g_cur_interface.empty(), nothing);
    EXPECT_EQ(g_cur_protocol.empty(), nothing);
    EXPECT_EQ(g_bus_form == bus_form::unknown, nothing);
    EXPECT_EQ(g_Supported_obd_mask_0.empty(), nothing);
    EXPECT_EQ(g_Supported_obd_mask_2.empty(), nothing);
    EXPECT_EQ(g_this_delta, nothing ? 3 : 3000);
}

// NAME yes|no
void state(transcript& t, const std::string& text) {
    const std::map<std::string, bool> states = {
        {"wifi", connected_2_WIFI_interface},
        {"bluetooth", connected_2_BT_interface},
        {"outstanding", t.app->delegate->anything_outstanding()},
        {"doubt", t.app->delegate->link_in_doubt()},
        {"metric", g_metric_units},
        {"logs", g_log_runs}};
    const auto words = split(text, 2);
    EXPECT_EQ(states.at(words[0]), words[1] == "yes");
}

// What the Bluetooth door is to do, and has done.
int& number_of(scripted_serial_port& door, const std::string& name) {
    const std::map<std::string, int*> numbers = {{"selector-result", &door.selector_result},
                                                 {"no-selector", &door.no_selector},
                                                 {"nothing-selected", &door.nothing_selected},
                                                 {"no-record", &door.no_service_record},
                                                 {"channel-id-error", &door.channel_id_error},
                                                 {"connect-error", &door.connect_error},
                                                 {"open-error", &door.open_error},
                                                 {"leaves-channel", &door.open_leaves_channel},
                                                 {"write-error", &door.write_error},
                                                 {"close-error", &door.close_connection_error},
                                                 {"choosers", &door.choosers},
                                                 {"opens", &door.opens},
                                                 {"channel-id", &door.opened_channel_id},
                                                 {"closed-channels", &door.closed_channels},
                                                 {"closed-connections", &door.closed_connections}};
    return *numbers.at(name);
}

// What a connection that is gone still has to say
void late(transcript& t, const std::string&) {
    for (const int event :
         {STREAM_OPEN_COMPLETED, STREAM_BYTES_AVAILABLE, STREAM_ERROR, STREAM_END})
        if (t.old_wire)
            t.old_wire(stream_side::input, event);
    if (!t.old_channel.data)
        return;
    t.old_channel.open_complete(0);
    t.old_channel.data("OK\r\r>");
    t.old_channel.closed();
    t.old_channel.open_complete(111);
}

} // namespace

const transcript_verbs LINK_VERBS = {
    {"start", start},
    // KEY [VALUE]: as the file has it; of the list, blanks between
    {"stored",
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         const user_defaults file(t.app->defaults.path());
         std::string value;
         for (const std::string& one :
              file.string_array(words[0]).value_or(std::vector<std::string>{}))
             value += (value.empty() ? "" : " ") + one;
         EXPECT_EQ(value, words[1]);
     }},
    {"connected", [](transcript& t, const std::string&) { t.app->connect(); }},
    {"connection", connection},
    {"channel", channel},
    {"bluetooth",
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         number_of(t.app->bluetooth, words[0]) = std::stoi(words[1]);
     }},
    {"counted",
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         EXPECT_EQ(number_of(t.app->bluetooth, words[0]), std::stoi(words[1]));
     }},
    {"remember",
     [](transcript& t, const std::string&) {
         if (!t.app->wires.empty())
             t.old_wire = t.app->wire().handler;
         t.old_channel = t.app->bluetooth.channel;
     }},
    {"late", late},
    // Opened as by a task, without a screen's work
    {"link", [](transcript& t, const std::string&) { t.app->delegate->openInterfaceConnection(); }},
    {"command",
     [](transcript& t, const std::string& text) { t.app->delegate->sendOBDcmd(unescaped(text)); }},
    // TRANSPORT NAME NUMBER: of the last attempt
    {"dialled",
     [](transcript& t, const std::string& text) {
         ASSERT_FALSE(t.app->wires.empty()) << "no attempt";
         const auto& wire = t.app->wire();
         EXPECT_EQ((wire.serial ? "serial " : "wifi ") + wire.host + " " +
                       std::to_string(wire.port),
                   text);
     }},
    {"attempts", [](transcript& t,
                    const std::string& text) { EXPECT_EQ(t.app->wires.size(), std::stoul(text)); }},
    // WHICH TIMES
    {"closes",
     [](transcript& t, const std::string& text) {
         const auto words = split(text, 2);
         EXPECT_EQ(t.app->wires.at(std::stoul(words[0]))->closes, std::stoi(words[1]));
     }},
    {"sent", sent},
    {"received", received},
    {"rounds", rounds},
    // Nothing (more) was sent
    {"quiet",
     [](transcript& t, const std::string&) {
         EXPECT_EQ(t.app->sent(), "");
         EXPECT_EQ(t.app->bluetooth.written, std::deque<std::string>());
     }},
    {"advance",
     [](transcript& t, const std::string& text) {
         t.app->loop.advance(std::chrono::milliseconds(std::stol(text)));
     }},
    {"warning", [](transcript&, const std::string& text) { expect_warning(text); }},
    // PATH|NAME|MAKER / ...: what is plugged in
    {"ports", plug},
    {"transport", // as far as messages name it
     [](transcript&, const std::string& text) {
         g_connect_with = text == "bluetooth" ? KS_USE_BT : KS_USE_WIFI;
     }},
    {"learns", learns},
    {"knows", knows},
    {"state", state},
};

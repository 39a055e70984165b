// The one application-wide object: loads the settings into the shared state, swaps the screens in
// and out of the main window, and owns the single link to the adapter. Created once by main,
// outlives window and screens.
//
// Shell half: Ks_lite_delegate.cpp. Link half: delegate_link.cpp and delegate_restore.cpp over
// delegate_tcp.cpp and delegate_bluetooth.cpp. The link neither interprets replies nor waits for
// prompts: it sends one command, arms the reply time-out, and hands every received chunk, or
// "Timeout", to the screen that is showing.
#pragma once

#include "notification_center.h"
#include "reply_ledger.h"
#include "run_loop.h"
#include "screen_controller.h"
#include "serial_port_list.h"
#include "serial_port_profile.h"
#include "stream_pair.h"

#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class alerts;
class bundle;
class user_defaults;
struct transport;
class QWidget;
class Ks_lite_delegate;

// The outside world, provided by the start-up code or a test.
struct app_doors {
    run_loop& loop;
    alerts& message_boxes;
    user_defaults& defaults;
    const bundle& resources;
    notification_center& notifications;
    stream_pair_factory make_streams; // over TCP
    serial_port_profile& bluetooth;
    stream_pair_factory make_serial_streams = {};
    serial_port_lister serial_ports = {};
};

// Makes the controller of an interface file; nothing if it cannot be loaded.
using screen_factory = std::function<std::unique_ptr<screen_controller>(Ks_lite_delegate&)>;
using screen_factories = std::map<std::string, screen_factory, std::less<>>;

// Posted when link_in_doubt() may have changed.
inline constexpr char LINK_EVENT[] = "link";

inline constexpr char READ_CODES_VIEW[] = "read_codes_view";
inline constexpr char ACTIONS_VIEW[] = "actions_view";
inline constexpr char PREFS_VIEW[] = "prefs";
inline constexpr char EXPERT_VIEW[] = "expertView";
inline constexpr char REPORT_VIEW[] = "report_view";

class Ks_lite_delegate {
  public:
    Ks_lite_delegate(app_doors doors, screen_factories factories);
    ~Ks_lite_delegate();
    Ks_lite_delegate(const Ks_lite_delegate&) = delete;
    Ks_lite_delegate& operator=(const Ks_lite_delegate&) = delete;

    app_doors& doors() { return doors_; }

    // --- shell
    // ------------------------------------------------------------------------------------------
    void do_read_codes() { show_screen(READ_CODES_VIEW, true); }
    void do_actions() { show_screen(ACTIONS_VIEW, true); }
    // Choosing the preferences again while they are shown discards unsaved edits.
    void do_prefs() { show_screen(PREFS_VIEW, false); }
    void do_expert() { show_screen(EXPERT_VIEW, true); }
    void do_report() { show_screen(REPORT_VIEW, true); }
    void do_logs() {}
    void do_help_button();
    void applicationWillTerminate();
    void wrap_leave();

    // Where a screen's view is placed; owned by the window.
    void set_main_view(QWidget* view) { mainView = view; }
    screen_controller* current_screen() { return mainViewController.get(); }
    const std::string& current_screen_name() const { return screen_name_; }
    std::function<void()> screen_changed;
    // Called with every status text, whatever the screen does with it.
    std::function<void(const std::string&)> status_shown;

    // --- link
    // -------------------------------------------------------------------------------------------
    // True: the link is usable now. False: it is being opened (or could not be) and starts the
    // screen's work itself once it is up.
    bool openInterfaceConnection();
    void sendOBDcmd(std::string_view command);
    void l_work_current_task(const std::string* message);
    void l_set_status_msg(const std::string& message);
    void disconnect();
    // The settings have been changed: a link to an adapter that they no longer name is closed, and
    // what that adapter said is forgotten.
    void settings_left();
    // Resets the link as a restart would, and opens it. Starts no task.
    void reconnect();
    // The link is being opened, and will start the screen's work.
    bool link_coming_up() const;
    // Changes each time the link is dropped.
    std::uint64_t link_number() const { return attempt_; }
    // A reply, a connection or a deferred call is outstanding.
    bool anything_outstanding() const;
    // No reply is expected any more, and commands already sent do not time out.
    void give_up_on_replies();
    // Nothing has arrived since the connection broke or failed, since a time-out, or for long
    // although a reply is awaited.
    bool link_in_doubt() const;
    reply_ledger& replies() { return ledger_; }
    // Why opening the link could not even begin, since no event will report that; else empty.
    std::string advice() const;

    // Operations of the table of transports.
    bool openTCP_socky();
    void sendOBDcmd_TCP(std::string_view command);
    bool openSerialPortProfile();
    void sendOBDcmd_BT(std::string_view command);

    // A task has changed settings of the adapter; these commands restore them.
    void restore_later(std::span<const std::string_view> commands) { restore_commands_ = commands; }
    bool adapter_changed() const { return !restore_commands_.empty(); }
    // Calls `done`, unless a screen sends a command or is replaced. `well`: the adapter accepted
    // every command.
    void restore_adapter(std::function<void(bool well)> done);
    bool restoring_adapter() const { return restore_limit_ != 0; }
    // The adapter was reset, or cannot be reached.
    void forget_restore();
    // Before the program exits: ends the task and calls `then` afterwards. False if there is
    // nothing to restore.
    bool restore_adapter_before(std::function<void()> then);

  private:
    // shell
    void load_settings();
    void show_screen(std::string_view interface_file, bool save_first);
    void release_current_screen();

    // link
    void obdTimedOutHandler();
    void handleOBDRcvdNotification(const std::string& text);
    void post_received(const std::string& text);
    void notify_link_lost();
    void set_doubt(bool in_doubt);
    void work_over_new_link(const std::string& message);
    void drop_link();

    void send_over_link(std::string_view command);

    // delegate_restore.cpp
    void limit_restore(std::function<void()> in_vain);
    void send_restore_command();
    void take_restore_reply(const std::string& text);
    void restore_ended(bool well);
    void stop_restore();

    // streams
    void connectToServerUsingCFStream(const std::string& host, long portNo);
    void stream(stream_side side, int handleEvent);
    void stream_opened();
    void bytes_available();
    void tcpTimeOutHandler(std::uint64_t attempt);

    // Bluetooth
    std::shared_ptr<bluetooth_device> choose_bluetooth_device();
    std::shared_ptr<bluetooth_device> last_bluetooth_device() const;
    rfcomm_channel_delegate channel_callbacks();
    void drop_channel();
    void rfcommChannelOpenComplete(int status);
    void rfcommChannelData(std::string_view data);
    void rfcommChannelClosed();
    void closeDeviceConnectionOnDevice(const std::shared_ptr<bluetooth_device>& device);
    void closeRFCOMMConnectionOnChannel(const std::shared_ptr<rfcomm_channel>& channel);

    app_doors doors_;
    screen_factories factories_;
    notification_center::observer_id observer_ = 0;

    QWidget* mainView = nullptr;
    std::unique_ptr<screen_controller> mainViewController;
    std::string screen_name_;
    std::vector<std::unique_ptr<screen_controller>> released_; // until the run loop's next turn
    run_loop::timer_id release_ = 0;

    run_loop::timer_id obdTimeOutTimer = 0;
    reply_ledger ledger_;
    bool in_doubt_ = false;

    std::span<const std::string_view> restore_commands_;
    std::size_t restore_next_ = 0;
    int restore_tries_ = 0; // of the current command; 0: an earlier reply is still owed
    bool restore_ok_ = true;
    std::string restore_reply_;
    run_loop::timer_id restore_limit_ = 0;
    std::vector<std::function<void(bool well)>> when_restored_;

    // What the settings named when the link was last opened.
    struct adapter_choice {
        const transport* way = nullptr; // none
        std::string address;
        bool operator==(const adapter_choice&) const = default;
    };
    static adapter_choice chosen_adapter();
    adapter_choice opened_to_;
    std::uint64_t attempt_ = 0;      // counts attempts: the events of an abandoned one are ignored
    bool only_connecting_ = false;   // no task is waiting for the link
    const transport* way_ = nullptr; // of the streams
    std::unique_ptr<stream_pair> streams_;
    enum class attempt_state {
        none,
        connecting,
        opened,
        failed
    } attempt_state_ = attempt_state::none;
    bool sent_1st_cmd = false;
    run_loop::timer_id deferred_call_ = 0;

    std::shared_ptr<bluetooth_device> mBluetoothDevice; // while connected
    std::shared_ptr<rfcomm_channel> mRFCOMMChannel;     // once set, cleared by drop_link() only
    bool bluetooth_opening_ = false;
};

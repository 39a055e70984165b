// Initialises the adapter and the car's bus before a task: reset, echo off, identity, protocol,
// headers on, supported PIDs, headers off. One step per complete reply; the step numbers below are
// the values of next_step_idx while g_cur_mode is MODE_HANDSHAKE. Two screens run it; they differ
// in texts and in how a reply is screened, which the subclass of each screen provides. A member of
// its screen.
#pragma once

#include <string>
#include <string_view>

class obd_screen;

// What the screener returns for a rejected reply, after informing the user.
inline constexpr char REPLY_REJECTED[] = "-666";

struct handshake_texts {
    std::string_view reset_not_understood;    // "?" to the reset, for the third time
    std::string_view echo_off_not_understood; // "?" to "AT E0"
    std::string_view
        echo_off_improper; // anything but OK to "AT E0"; followed by the reply in brackets when
    bool echo_off_improper_shows_reply; //   this is set
    std::string_view protocol_prefix;
    std::string_view headers_given_up;
    std::string_view first_pids_failed; // "~" to "01 00"
    std::string_view more_pids_failed;  // "~" to "01 20", "01 40"
    bool first_pids_screened;           // the "01 00" answer goes through the screener too
    bool rejection_leaves;              // a rejected answer to "AT E0" also resets the screen
};

class adapter_handshake {
  public:
    adapter_handshake(obd_screen& screen, const handshake_texts& texts)
        : screen_(screen), texts_(texts) {}
    virtual ~adapter_handshake() = default;

    // Whether the adapter must be initialised before a task; if so, starts the handshake.
    bool comes_first();
    // Runs one step. True if that completed the handshake and started the task.
    bool connect_2_interface(int step);
    // The last complete reply cleaned, or REPLY_REJECTED.
    virtual std::string check_initial_car_reply() = 0;

  protected:
    obd_screen& screen_;

  private:
    struct pid_group;

    int fixed_protocol_replies_ = 0;

    void start();
    void reset_answered();
    void echo_off_answered();
    void identity_answered();
    void protocol_answered();
    void headers_on_answered();
    void headers_on_not_confirmed();
    void pids_answered(const pid_group& group);
    bool headers_off_answered();

    void send(std::string_view command, int next_step);
    void send_waiting(std::string_view command, int next_step);
    void fail_with_box(std::string_view message);
    void fail_with_status(std::string_view message);

    const handshake_texts texts_;
};

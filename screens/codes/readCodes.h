// The trouble-codes screen: brings the adapter up, reads and clears trouble codes, shows lamp,
// count and readiness monitors. Every task is a chain of steps, one per complete reply. Files:
// readCodes.cpp the engine and the tables, read_codes_task.cpp and clear_codes_task.cpp the two
// chains, codes_view the widgets.
#pragma once

#include "codes_handshake.h"
#include "constantes.h"
#include "obd_screen.h"
#include "unread.h"

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class codes_view;

using code_row = std::array<std::string, 2>; // code, description

// The result of the last reading, without widgets.
struct codes_report {
    std::string lamp; // "ON", "OFF", or "N/A" if no unit reported it
    std::optional<int> count;
    std::string read_on;
    std::string interface;
    std::string protocol;
    int ecus = 0;
    bool codes_reported = false; // the car reported the list; complete if nothing is unread
    unread_pieces unread;
    std::vector<code_row> codes;
    std::vector<readiness_flag> readiness;
};

class readCodes final : public obd_screen {
  public:
    explicit readCodes(Ks_lite_delegate& delegate);
    ~readCodes() override;

    QWidget* view() override;
    void leave_cur_op_gracefully(const std::string& message) override;
    void show_interface(const std::string& text) override;
    void show_protocol(const std::string& text) override;
    void show_control_units(int count) override;

    void readCodes_clicked();
    void clearCodes_clicked();
    // Diagnostic: puts the last complete reply on the status line.
    void obd_sim();
    // Fills P0_Codes once.
    void load_the_codes();
    static std::string look_upCode(std::string_view code, const text_dictionary& this_dict);

    // The task that the last button started succeeded.
    bool succeeded() const { return succeeded_; }
    codes_report report() const;

  private:
    void work_task(int task, int step) override;
    adapter_handshake* handshake() override { return &handshake_; }
    void awakeFromNib();
    void start_task(int task, const std::string& status);
    void forget_last_reading();
    bool report_is_safe();

    // read_codes_task.cpp
    void work_out_read_codes(int step);
    void start_reading();
    void headers_answered(std::string_view next_command, int next_step);
    void retry_headers();
    void end_by_timeout();
    void status_answered();
    void decode_status();
    void codes_answered();
    void refresh_readiness();
    std::vector<std::string> work_reply_to_error_codes_pid(std::string_view mode,
                                                           std::string_view this_reply);

    // clear_codes_task.cpp
    void work_out_clear_codes(int step);
    void clear_answered();

    std::unique_ptr<codes_view> view_;
    codes_handshake handshake_;

    std::vector<code_row> codesReadArray;
    std::vector<readiness_flag> readinessFlagsArray;
    text_dictionary P0_Codes;
    std::vector<std::string> codes_rcvd, units_rcvd; // a unit for each code
    int no_of_codes = 0;

    int units_answered_ = 0;
    std::string status_reply_;                // without blanks
    bool status_reported_ = false;            // a unit answered "01 01" in this task
    bool count_known_ = false;                // and so did all other known units
    bus_form status_bus_ = bus_form::unknown; // by its headers
    unread_pieces unread_;                    // of this task's replies
    bool codes_reported_ = false;
    bool longer_timeout_requested_ = false; // "AT ST FF" is tried once per task
    int headers_repeated_ = 0;
    bool succeeded_ = false;
};

// The decoding toolkit: turns adapter replies into bytes, values and display text. It has no state
// of its own; there is a shared instance (sharedManager), and some screens create their own. Its
// doors (resources, settings, message boxes, notifications) are passed in and outlive it.
//
// Replies are text. The adapter ends lines with "\r", may add line feeds, may print a search notice
// ending in "..." before the first line, and ends every reply with ">". Marks in answers: "~"
// unusable reply, "N/A" missing table entry or unit, "NOT FOUND" unknown PID name.
#pragma once

#include "data_folder.h"
#include "text_dictionary.h"

#include <cstdint>
#include <ctime>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class alerts;
class bundle;
class notification_center;
class user_defaults;

struct toolkit_doors {
    const bundle* resources = nullptr;
    const user_defaults* defaults = nullptr;
    alerts* message_boxes = nullptr;
    notification_center* notifications = nullptr;
    // Contains the log folder; tests use their own.
    std::string data_folder = user_data_folder();
    std::function<std::time_t()> now = [] { return std::time(nullptr); };
};

// A reply's display text and its number (translateResponse and get_OBDVal).
struct translated {
    std::string text;
    double value;
};

// One row of the readiness table.
struct readiness_flag {
    std::string state;   // "N/A", "OK" or "X"
    std::string monitor; // label
    std::string kind;    // "Continous" or "Non-Continous"
    bool operator==(const readiness_flag&) const = default;
};

// A log in the log folder.
struct logged_run {
    std::string name; // without folder
    std::uintmax_t bytes;
    std::time_t written;
};

class mac_toolies {
  public:
    explicit mac_toolies(const toolkit_doors& doors) : doors_(doors) {}

    // Creates the shared instance; called once at start-up (and by each test).
    static void initialize(const toolkit_doors& doors);
    static mac_toolies& sharedManager();

    // --- reply_text.cpp: normalising, hex, splitting, padding
    static std::string clean_a_reply(std::string_view reply);
    // The reply from its first "..." on, the dots included; unchanged without one.
    static std::string fix_3dots(std::string_view reply);
    // The reply, or "~" if it does not answer that two-digit PID. The third argument is ignored.
    static std::string check_bad_reply(std::string_view reply, std::string_view this_pid,
                                       std::string_view this_bad_char = {});
    static int charToNibble(char c); // 0 for anything but a hex digit
    // Nothing for text of odd length.
    static std::optional<std::vector<std::uint8_t>> fromHexString(std::string_view text);
    // Like C's "%x": accepts leading white space, a sign and "0x", stops at the first other
    // character; 0 without digits, saturates at 32 bits.
    static std::uint32_t convertStr2Byte(std::string_view text);
    static std::string convertByte2HexStr(unsigned value);
    // Every piece, empty ones too.
    static std::vector<std::string>
    Pull_line_into_array(std::string_view text, std::string_view this_token, int no_of_items = 0);
    // Non-empty pieces between any of the separator characters, of the first 299 bytes.
    static int count_items_in_Str(std::string_view text, std::string_view this_token);
    static std::string myReplace(std::string_view text, std::string_view this_str,
                                 std::string_view with_this_str);
    static std::string padLeft(std::string_view text, int padded_size, std::string_view padChar);
    static std::string padRight(std::string_view text, int padded_size, std::string_view pdChar);
    static std::string padString(std::string_view text, char this_pad_char, int this_padded_len,
                                 bool onRight);
    static std::string formatStringWithDouble(std::string_view text, int no_of_decs);

    // --- message_boxes.cpp
    void myMsgBox(std::string_view text) const;
    // True if the first button was chosen. An empty other_btn_txt means one button.
    bool myMsgBox(std::string_view title, std::string_view this_msg,
                  std::string_view cancel_btn_txt, std::string_view other_btn_txt) const;

    // --- controllers.cpp: several control units in one reply
    static std::string pull_ECU(std::string_view line);
    static std::optional<std::string> pull_PID_msg(std::string_view line, std::string_view this_PID,
                                                   std::string_view for_this_ECU);
    static std::optional<std::vector<std::string>> Pull_ECU_msg(std::string_view reply);
    static std::string grab_CAN_msg(std::string_view reply);

    // --- supported_pids.cpp
    static void handle_00_replies(std::string_view reply, int this_pid_group);
    static bool is_this_code_available(std::string_view mask, std::string_view this_pid,
                                       int this_pid_set);

    // --- trouble_codes.cpp For the bus that g_cur_protocol names, with an older bus's short lines
    // padded. What could not be read is reported by read_codes (trouble_codes.h).
    static std::vector<std::string> work_reply_to_error_codes_pid(std::string_view mode,
                                                                  std::string_view this_reply);
    static std::string pull_DTC_code(std::string_view four_digits);

    // --- readiness.cpp
    // Empties and refills `these_flags` from bytes B, C, D of "01 01" as hex text (SAE J1979).
    // Throws std::out_of_range at the first missing label line; the rows built so far stay.
    void handle_readiness_codes(std::string_view flags_text,
                                std::vector<readiness_flag>& these_flags) const;

    // --- tables.cpp: shipped text tables
    std::optional<std::vector<std::string>>
    get_array_from_resource(std::string_view name, std::string_view this_type) const;
    std::optional<text_dictionary> get_dictionary_from_resource(std::string_view name,
                                                                std::string_view this_type,
                                                                std::string_view this_delim) const;

    // --- pid_names.cpp, catalogue.cpp: names, units and ranges of parameters
    // A PID is hex text of any case; text that is not hex is PID 0.
    std::string get_pid_name(std::string_view pid, bool with_pid) const;
    // In the user's units; "N/A" for a PID without a unit.
    std::string get_units(std::string_view pid) const;
    // The chart's maximum or minimum in the user's units; both 0 for a PID without a range.
    double get_PID_min_max(std::string_view pid, bool get_max) const;
    // Spaceless reply text that carries a value in the user's units (PID 10) or miles per US gallon
    // (PID E4); empty for any other PID.
    std::string encode_to_OBD(double value, std::string_view this_pid) const;

    // --- translation.cpp
    // The display text of a service 01 reply of any length and any bytes (SAE J1979), in the user's
    // units;
    // "~" when it cannot be read. Only the first line counts.
    std::string translateResponse(std::string_view reply) const;
    // The number that the display text begins with, rounded as shown: 0 for a text without one, NaN
    // for an unusable reply.
    double get_OBDVal(std::string_view reply) const;
    // Both of the above for the cost of one.
    translated translate_once(std::string_view reply) const;

    // --- mode6.cpp, vin.cpp
    // A test value (hex text) scaled by its unit-and-scaling identifier, six decimals; with_units
    // appends a blank and the unit, which may be empty (SAE J1979 service 06 on CAN).
    static std::string CAN_scale_and_units(std::string_view identifier, std::string_view this_value,
                                           bool with_units);
    // The name of a monitor or test identifier; "N/A" outside the table.
    std::string grab_CAN_mode6_OBDMID_TESTID_description(std::string_view identifier,
                                                         bool is_OBDMID) const;
    static std::string work_out_vin(std::string_view reply);
    // Whether that reply holds a complete number: 17 characters of ISO 3779, from undamaged lines
    // and frames in order.
    static bool is_whole_vin(std::string_view vin, std::string_view reply);

    // --- run_logs.cpp: names of run logs The local date and time, ordered by the user's units,
    // with localised month names and a 12-hour clock without AM or PM. Flag 0: for file names,
    // "Nov_15_2026-0254_33"; 1: for display, "Nov 15 2026 02:54:33".
    std::string get_todays_date(int flag) const;
    // "loggies" in the data folder; it may not exist yet.
    std::string log_folder() const;
    // Creates the log folder if it does not exist; the reason of failure, else empty.
    std::string make_log_folder() const;
    // The path, without extension, for the log of a run that starts now. Creates the log folder if
    // necessary; a failure is logged and the path still returned.
    std::string work_out_log_fname_for_mode(int task) const;
    // The logs in the log folder, newest first; no exports or other files.
    std::vector<logged_run> list_logs() const;
    // Removes a file of the log folder. False, with a logged warning, if that fails or the text is
    // not a plain file name.
    bool delete_a_log(std::string_view file_name) const;

    // --- export.cpp Writes a log of the log folder, given by its name, as a table of translated
    // values in the same folder (log_export.h). True if at least one line was read. An existing
    // export is kept and a message box says so; an output that cannot be written is logged; a
    // missing or empty log leaves an empty output.
    bool export_to_CSV(std::string_view log_file_name, bool as_txt) const;

    // --- canned_adapter.cpp
    // Posts the canned answer to `command` as "OBDevent" before it returns.
    void emulate_OBD(std::string_view command) const;

    const toolkit_doors& doors() const { return doors_; }

  private:
    // A view of constant text, of a line table or of `room`, which holds numbers as text.
    std::string_view display_text(std::string_view reply, std::span<char> room) const;
    // The text of a code, 1 being the first line; "N/A" outside the table.
    std::string_view table_text(std::string_view table, std::uint32_t code) const;

    toolkit_doors doors_;
    // Line tables used by translation; shipped tables never change.
    mutable std::map<std::string, std::vector<std::string>, std::less<>> line_tables_;
};

#include "bluetooth_problem.h"

#include "bundle.h"

#include <array>
#include <cerrno>

namespace {

struct problem_row {
    bluetooth_problem problem;
    int number;
    const char* text; // in the strings table
};
constexpr problem_row PROBLEMS[] = {
    {bluetooth_problem::none, 0, ""},
    {bluetooth_problem::service_missing, ENODEV, "bt_service_missing"},
    {bluetooth_problem::no_adapter, ENODEV, "bt_no_adapter"},
    {bluetooth_problem::switched_off, ENETDOWN, "bt_switched_off"},
    {bluetooth_problem::not_permitted, EPERM, "bt_not_permitted"},
    {bluetooth_problem::in_use, EBUSY, "bt_in_use"},
    {bluetooth_problem::out_of_reach, EHOSTDOWN, "bt_out_of_reach"},
    {bluetooth_problem::no_serial_port, EPROTONOSUPPORT, "bt_no_serial_port"},
    {bluetooth_problem::refused, ECONNREFUSED, "bt_refused"},
    {bluetooth_problem::pairing_failed, EACCES, "bt_pairing_failed"},
    {bluetooth_problem::no_user, ENODEV, "bt_no_chooser"},
    {bluetooth_problem::other, EIO, "bt_other_problem"},
};

const problem_row& row_of(bluetooth_problem problem) {
    return PROBLEMS[static_cast<std::size_t>(problem)];
}

// Parts of BlueZ's error names and texts; the first match wins.
struct error_row {
    std::string_view part;
    bluetooth_problem problem;
};
constexpr error_row ERRORS[] = {
    {"adapter-not-powered", bluetooth_problem::switched_off},
    {"Error.NotReady", bluetooth_problem::switched_off},
    {"profile-unavailable", bluetooth_problem::no_serial_port},
    {"Error.NotAvailable", bluetooth_problem::no_serial_port},
    {"Error.NotSupported", bluetooth_problem::no_serial_port},
    {"-timeout", bluetooth_problem::out_of_reach},
    {"le-connection-abort", bluetooth_problem::out_of_reach},
    {"Error.NotConnected", bluetooth_problem::out_of_reach}, // no longer
    {"Not connected", bluetooth_problem::out_of_reach},
    {"Host is down", bluetooth_problem::out_of_reach},
    {"timed out", bluetooth_problem::out_of_reach},
    {"Error.NoReply", bluetooth_problem::out_of_reach},
    {"UnknownObject", bluetooth_problem::out_of_reach},
    {"UnknownMethod", bluetooth_problem::out_of_reach}, // the device's object has gone
    {"Error.DoesNotExist", bluetooth_problem::out_of_reach},
    {"Authentication", bluetooth_problem::pairing_failed},
    {"key-missing", bluetooth_problem::pairing_failed},
    {"Permission denied", bluetooth_problem::pairing_failed},
    {"Error.Rejected", bluetooth_problem::pairing_failed},
    {"already registered", bluetooth_problem::in_use},
    {"Error.InProgress", bluetooth_problem::in_use},
    {"busy", bluetooth_problem::in_use},
    {"Notify acquired", bluetooth_problem::in_use},
    {"Error.AccessDenied", bluetooth_problem::not_permitted},
    {"ServiceUnknown", bluetooth_problem::service_missing},
    {"NameHasNoOwner", bluetooth_problem::service_missing},
    {"Spawn.", bluetooth_problem::service_missing},
    {"Disconnected", bluetooth_problem::service_missing},
};

} // namespace

bluetooth_problem problem_of_error(std::string_view error_name, std::string_view error_text,
                                   bool paired) {
    const auto mentions = [&](std::string_view part) {
        return error_name.find(part) != std::string_view::npos ||
               error_text.find(part) != std::string_view::npos;
    };
    if (mentions("refused"))
        return paired ? bluetooth_problem::refused : bluetooth_problem::pairing_failed;
    for (const error_row& row : ERRORS)
        if (mentions(row.part))
            return row.problem;
    return bluetooth_problem::other;
}

int error_number(bluetooth_problem problem) {
    return row_of(problem).number;
}

std::string problem_text(bluetooth_problem problem, const bundle& texts,
                         const std::string& device) {
    std::string text = texts.localized(row_of(problem).text);
    if (const auto mark = text.find("%1"); mark != std::string::npos)
        text.replace(mark, 2, device);
    return text;
}

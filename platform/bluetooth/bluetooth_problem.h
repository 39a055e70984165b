// Why Bluetooth or a connection over it does not work, as far as the user can act on it.
#pragma once

#include <string>
#include <string_view>

class bundle;

enum class bluetooth_problem {
    none,
    service_missing, // no system bus, or no Bluetooth service on it
    no_adapter,
    switched_off,
    not_permitted,
    in_use, // another program has the adapter's serial port
    out_of_reach,
    no_serial_port,
    refused,
    pairing_failed,
    no_user, // a choice is needed where no dialog can be shown
    other
};

// What a failed call to BlueZ means. `paired`: the device is paired, so pairing was not what
// failed.
bluetooth_problem problem_of_error(std::string_view error_name, std::string_view error_text,
                                   bool paired);

// The closest system error number.
int error_number(bluetooth_problem problem);

// What happened and what to do, in the user's language. `device`: its name.
std::string problem_text(bluetooth_problem problem, const bundle& texts,
                         const std::string& device = {});

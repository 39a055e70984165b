// The Bluetooth door of this program: with the dialog to choose an adapter, or for commands, which
// cannot ask. Failures that the link only logs are shown in a message box.
#pragma once

#include <memory>

class alerts;
class bundle;
class run_loop;
class serial_port_profile;
class user_defaults;

// The arguments outlive the door.
std::unique_ptr<serial_port_profile> make_bluetooth_door(run_loop& loop, alerts& message_boxes,
                                                         const bundle& texts,
                                                         const user_defaults& store, bool has_user);

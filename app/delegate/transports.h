// The transports, a row each, with everything that differs between them. No other code depends on
// which one is in use.
#pragma once

#include "stream_pair.h"

#include <span>
#include <string>
#include <string_view>

struct app_doors;
class Ks_lite_delegate;
class user_defaults;

// What the settings name as the far end of a stream: a host and its port, or a serial port and its
// speed.
struct stream_address {
    std::string name;
    long number = 0;
    std::string shown; // to the user
    std::string typed; // identifies the address
};

struct transport {
    const char* name;           // in recordings
    int interface;              // KS_interface and g_connect_with
    bool serial;                // a serial port, not TCP
    const char* first_step;     // the button of a first start
    const char* first_step_key; // its text
    const char* kind_key;       // text: requirements, and what to do when it fails
    const char* car_silent_key; // text: the adapter works, the car does not answer

    bool (Ks_lite_delegate::*open)();
    void (Ks_lite_delegate::*send)(std::string_view command);
    const bool* connected;                    // the link is up
    bool sends_while_opening;                 // counts as open before that
    void (*load)(const user_defaults& store); // the stored address, into the shared state
    // Why opening did not even begin, and what to do; null if an event reports that.
    std::string (*advice)(const app_doors& doors);

    // Of a stream.
    stream_pair_factory app_doors::*make_streams;
    stream_address (*address)();
    const char* connected_text;
    const char* slow_key; // text: there is no connection yet
};

std::span<const transport> transports();
const transport& transport_named(std::string_view name); // "bluetooth", "wifi", "serial"
// The one in use, and that of the settings.
const transport& chosen_transport();
const transport& stored_transport(const user_defaults& store);
// Into the shared state, and into the settings.
void use_transport(const transport& chosen);
void store_transport(const transport& chosen, user_defaults& store);

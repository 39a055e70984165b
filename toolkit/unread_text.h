// What could not be read of the car's replies, as sentences for the user.
#pragma once

#include "unread.h"

#include <optional>
#include <string>
#include <string_view>

class bundle;

// "the adapter said CAN ERROR; a damaged line": each cause once.
std::string unread_causes(const bundle& resources, const unread_pieces& unread);

// The name of a kind in JSON.
std::string_view unread_name(unread_kind kind);
std::optional<unread_kind> unread_kind_named(std::string_view name);

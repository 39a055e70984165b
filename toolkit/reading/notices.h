// What adapters say besides data or instead of it (the ELM327 data sheet and its copies).
#pragma once

#include <optional>
#include <string_view>

enum class notice_kind {
    harmless, // "OK", a search notice
    no_data,  // the car did not answer
    trouble   // what the car said was lost
};

struct notice {
    std::string_view spaceless; // capitals
    std::string_view text;      // as adapters print it
    notice_kind kind;
};

// The notice for a spaceless line of capitals; null if it is not one.
const notice* notice_in(std::string_view line);

// The line without leading search and bus notices ("SEARCHING...", "BUS INIT: OK").
std::string_view behind_search_notices(std::string_view line);

// Whether a spaceless text of capitals contains any of them except OK.
bool holds_notice(std::string_view text);

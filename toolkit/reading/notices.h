// What adapters say beside data or instead of it (the ELM327 data sheet and its copies).
#pragma once

#include <optional>
#include <string_view>

enum class notice_kind {
    harmless, // "OK", a search notice
    no_data,  // the car did not answer
    trouble   // whatever the car said was lost
};

struct notice {
    std::string_view spaceless; // capitals
    std::string_view text;      // as adapters print it
    notice_kind kind;
};

// The notice that a spaceless line of capitals is; null for any other line.
const notice* notice_in(std::string_view line);

// The line without the search and bus notices in front of its data ("SEARCHING...", "BUS INIT:
// OK").
std::string_view behind_search_notices(std::string_view line);

// Whether a spaceless text of capitals holds any of them, OK excepted.
bool holds_notice(std::string_view text);

// The program's languages, and the user's choice.
#pragma once

#include <span>
#include <string>

class user_defaults;

struct language {
    const char* code;
    const char* name; // in that language
};

inline constexpr char LANGUAGE_KEY[] = "language";

std::span<const language> languages();

// The code of the stored choice; empty for the desktop's language, which is also used for an
// unknown code.
std::string chosen_language(const user_defaults& store);

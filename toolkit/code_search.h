// Trouble codes by themselves: what a code means, and which codes speak of something.
#pragma once

#include "mac_toolies.h"

#include <string>
#include <string_view>
#include <vector>

struct found_code {
    std::string code, description;
};

// The code itself when the text is one, in letters of any case; else every code whose description
// holds all of the text's words, in letters of any case. In the order of the codes; nothing for a
// text without words.
std::vector<found_code> search_codes(const mac_toolies& toolies, std::string_view text);

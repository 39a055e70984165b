// Looks up trouble codes: what a code means, and which codes mention given words.
#pragma once

#include "mac_toolies.h"

#include <string>
#include <string_view>
#include <vector>

struct found_code {
    std::string code, description;
};

// If the text is a code, that code; otherwise every code whose description contains all of the
// text's words, in the order of the codes. Case is ignored; a text without words finds nothing.
std::vector<found_code> search_codes(const mac_toolies& toolies, std::string_view text);

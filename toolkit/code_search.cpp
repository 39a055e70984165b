#include "code_search.h"

#include "text.h"

#include <algorithm>
#include <cctype>

namespace {

std::string in_capitals(std::string_view text) {
    std::string capitals(text);
    std::ranges::transform(capitals, capitals.begin(),
                           [](unsigned char c) { return std::toupper(c); });
    return capitals;
}

} // namespace

std::vector<found_code> search_codes(const mac_toolies& toolies, std::string_view text) {
    const auto table = toolies.get_dictionary_from_resource("P0_Codes", "txt", " ");
    const std::string wanted = in_capitals(trimmed(text));
    std::vector<std::string_view> words = split(wanted, " ");
    std::erase(words, "");
    if (!table || words.empty())
        return {};
    if (const auto exact = table->find(wanted); exact != table->end())
        return {{std::string(exact->first), std::string(trimmed(exact->second))}};
    std::vector<found_code> found;
    for (const auto& [code, description] : *table) {
        const std::string capitals = in_capitals(description);
        if (std::ranges::all_of(words, [&](auto word) { return contains(capitals, word); }))
            found.push_back({std::string(code), std::string(trimmed(description))});
    }
    return found;
}

#include "bundle.h"
#include "mac_toolies.h"
#include "text.h"

#include <algorithm>

namespace {

// Takes the next line off the front of `rest`, without its "\n".
std::string_view next_line(std::string_view& rest) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    return line;
}

} // namespace

std::optional<std::vector<std::string>>
mac_toolies::get_array_from_resource(std::string_view name, std::string_view this_type) const {
    const std::optional<std::string> text = doors_.resources->resource_text(name, this_type);
    if (!text)
        return std::nullopt;
    return Pull_line_into_array(*text, "\n");
}

std::optional<text_dictionary>
mac_toolies::get_dictionary_from_resource(std::string_view name, std::string_view this_type,
                                          std::string_view this_delim) const {
    const std::optional<std::string> text = doors_.resources->resource_text(name, this_type);
    if (!text)
        return std::nullopt;
    text_dictionary dictionary;
    if (this_delim.empty())
        return dictionary;
    dictionary.reserve(static_cast<std::size_t>(std::count(text->begin(), text->end(), '\n')) + 1);
    // The first line without a delimiter ends the table.
    for (std::string_view rest = *text; !rest.empty();) {
        const std::string_view line = next_line(rest);
        const std::size_t delimiter = line.find(this_delim);
        if (delimiter == line.npos)
            break;
        dictionary.insert_or_assign(std::string(trimmed(line.substr(0, delimiter))),
                                    std::string(line.substr(delimiter)));
    }
    return dictionary;
}

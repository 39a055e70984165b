#include "bundle.h"
#include "mac_toolies.h"

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
    std::optional<std::string> text = doors_.resources->resource_text(name, this_type);
    if (!text)
        return std::nullopt;
    return text_dictionary(std::move(*text), this_delim);
}

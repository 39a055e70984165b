#include "languages.h"

#include "user_defaults.h"

#include <algorithm>

namespace {

constexpr language LANGUAGES[] = {
    {"en", "English"}, {"de", "Deutsch"}, {"fr", "Français"}, {"es", "Español"}};

} // namespace

std::span<const language> languages() {
    return LANGUAGES;
}

std::string chosen_language(const user_defaults& store) {
    const std::string stored = store.string(LANGUAGE_KEY);
    return std::ranges::find(LANGUAGES, stored, &language::code) == std::end(LANGUAGES) ? ""
                                                                                        : stored;
}

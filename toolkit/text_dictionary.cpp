#include "text_dictionary.h"

#include "text.h"

#include <algorithm>

namespace {

bool has_lower_key(const text_dictionary::entry& one, const text_dictionary::entry& other) {
    return one.first < other.first;
}

bool has_same_key(const text_dictionary::entry& one, const text_dictionary::entry& other) {
    return one.first == other.first;
}

std::string_view trimmed_key(std::string_view key) {
    const auto solid = [](char c) { return c > ' ' && c <= '~'; };
    return key.empty() || (solid(key.front()) && solid(key.back())) ? key : trimmed(key);
}

} // namespace

text_dictionary::text_dictionary(std::string lines, std::string_view delimiter)
    : lines_(std::make_shared<const std::string>(std::move(lines))) {
    if (delimiter.empty())
        return;
    entries_.reserve(static_cast<std::size_t>(std::ranges::count(*lines_, '\n')) + 1);
    bool in_order = true; // true for shipped tables
    std::string_view rest = *lines_;
    while (!rest.empty()) {
        // Keys are short: a loop costs less than two searches of the line.
        std::size_t found = 0;
        while (found < rest.size() && rest[found] != '\n' &&
               (rest[found] != delimiter.front() ||
                (delimiter.size() > 1 && !rest.substr(found).starts_with(delimiter))))
            ++found;
        if (found == rest.size() || rest[found] == '\n')
            break;
        const std::string_view line = rest.substr(0, rest.find('\n', found));
        const entry next{trimmed_key(line.substr(0, found)), line.substr(found)};
        in_order = in_order && (entries_.empty() || entries_.back().first < next.first);
        entries_.push_back(next);
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
    if (!in_order)
        put_in_order();
}

text_dictionary::const_iterator text_dictionary::find(std::string_view key) const {
    const auto found = std::lower_bound(begin(), end(), entry{key, {}}, has_lower_key);
    return found != end() && found->first == key ? found : end();
}

void text_dictionary::put_in_order() {
    std::stable_sort(entries_.begin(), entries_.end(), has_lower_key);
    // Of several lines with the same key the last counts: the first in reverse.
    const auto kept = std::unique(entries_.rbegin(), entries_.rend(), has_same_key);
    entries_.erase(entries_.begin(), kept.base());
}

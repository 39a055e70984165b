#include "unread_text.h"

#include "bundle.h"
#include "text.h"

#include <algorithm>
#include <vector>

namespace {

struct kind_row {
    std::string_view name;
    std::string_view key;
};
constexpr kind_row ROWS[] = {
    {"adapter_notice", "unread_adapter_notice"},
    {"damaged_line", "unread_damaged_line"},
    {"not_understood", "unread_not_understood"},
    {"broken_off", "unread_broken_off"},
    {"too_long", "unread_too_long"},
    {"frames_unclear", "unread_frames_unclear"},
    {"refused", "unread_refused"},
    {"no_answer", "unread_no_answer"},
    {"silent_unit", "unread_silent_unit"},
    {"left_out", "unread_left_out"},
};

constexpr std::size_t LONGEST_QUOTE = 24, MOST_CAUSES = 3;

const kind_row& row_of(unread_kind kind) {
    return ROWS[static_cast<std::size_t>(kind)];
}

} // namespace

std::string unread_causes(const bundle& resources, const unread_pieces& unread) {
    std::vector<std::string> causes;
    for (const unread_piece& one : unread) {
        std::string cause = replace_all(resources.localized(row_of(one.kind).key), "%1",
                                        one.text.substr(0, LONGEST_QUOTE));
        if (causes.size() <= MOST_CAUSES && std::ranges::find(causes, cause) == causes.end())
            causes.push_back(std::move(cause));
    }
    std::string all;
    for (std::size_t i = 0; i < causes.size() && i < MOST_CAUSES; ++i)
        all += (i == 0 ? "" : "; ") + causes[i];
    return causes.size() > MOST_CAUSES ? all + "; …" : all;
}

std::string_view unread_name(unread_kind kind) {
    return row_of(kind).name;
}

std::optional<unread_kind> unread_kind_named(std::string_view name) {
    const auto* found = std::ranges::find(ROWS, name, &kind_row::name);
    if (found == std::end(ROWS))
        return std::nullopt;
    return static_cast<unread_kind>(found - std::begin(ROWS));
}

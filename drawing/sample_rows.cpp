#include "sample_rows.h"

#include "fixed_decimals.h"

#include <cstring>
#include <limits>

namespace {
constexpr double NO_NUMBER = std::numeric_limits<double>::quiet_NaN();
}

bool sample_rows::short_text::assign(std::string_view text) {
    if (text.size() > ROOM) {
        length_ = ROOM + 1;
        return false;
    }
    std::memcpy(room_, text.data(), text.size());
    length_ = static_cast<std::uint8_t>(text.size());
    return true;
}

sample_rows::sample_rows(std::size_t parameters) : columns_(parameters) {
    clear();
}

void sample_rows::clear() {
    for (column& c : columns_) {
        c = column();
        c.highest = c.lowest = NO_NUMBER;
    }
    long_texts_.clear();
    rows_ = 0;
}

double sample_rows::chart_number(std::string_view display_text) {
    return display_text.empty() || display_text == "-" ? NO_NUMBER : leading_number(display_text);
}

void sample_rows::append_fresh_row() {
    if (rows_ > 0)
        complete_last_row();
    for (column& c : columns_) {
        if (rows_ % CHUNK == 0)
            c.chunks.push_back(std::make_unique<chunk>());
        value_at(c, rows_) = NO_NUMBER;
        c.chunks.back()->texts[rows_ % CHUNK].assign(UNFILLED);
        c.newest_number = 0;
    }
    ++rows_;
}

void sample_rows::complete_last_row() {
    for (column& c : columns_) {
        if (rows_ > 1) {
            c.highest = std::fmax(c.highest, c.newest_number);
            c.lowest = std::fmin(c.lowest, c.newest_number);
        }
        if (rows_ % BLOCK == 0)
            sum_up(c);
    }
}

// Adds the block that the last row completes, and the blocks that this block completes.
void sample_rows::sum_up(column& c) const {
    const auto widen = [](block& sum, double lowest, double highest) {
        const bool whole = sum.whole() && !std::isnan(lowest);
        sum = whole ? block{std::min(sum.lowest, lowest), std::max(sum.highest, highest)}
                    : block{NO_NUMBER, NO_NUMBER};
    };
    block sum{value_at(c, rows_ - BLOCK), value_at(c, rows_ - BLOCK)};
    for (std::size_t row = rows_ - BLOCK + 1; row < rows_; ++row)
        widen(sum, value_at(c, row), value_at(c, row));
    for (std::size_t level = 0;; ++level) {
        if (level == c.levels.size())
            c.levels.emplace_back();
        std::vector<block>& blocks = c.levels[level];
        blocks.push_back(sum);
        if (blocks.size() % BLOCK != 0)
            return;
        sum = blocks[blocks.size() - BLOCK];
        for (std::size_t i = blocks.size() - BLOCK + 1; i < blocks.size(); ++i)
            widen(sum, blocks[i].lowest, blocks[i].highest);
    }
}

sample_rows::level_found sample_rows::largest_block(const column& c, std::size_t row,
                                                    std::size_t end) {
    level_found found;
    std::size_t size = BLOCK;
    for (const std::vector<block>& level : c.levels) {
        const std::size_t place = row / size;
        if (row % size != 0 || row + size > end || place >= level.size() || !level[place].whole())
            break;
        found = {&level, size};
        size *= BLOCK;
    }
    return found;
}

void sample_rows::file(std::size_t parameter, std::string_view reply, const translated& meaning) {
    if (rows_ == 0 || parameter >= columns_.size())
        return;
    column& c = columns_[parameter];
    const std::size_t row = rows_ - 1;
    value_at(c, row) = reply == UNFILLED ? NO_NUMBER : meaning.value;
    const std::size_t place = row * columns_.size() + parameter;
    if (c.chunks.back()->texts[row % CHUNK].assign(reply)) {
        if (!long_texts_.empty())
            long_texts_.erase(place);
    } else {
        long_texts_.insert_or_assign(place, std::string(reply));
    }
    c.newest_number = chart_number(meaning.text);
}

std::string_view sample_rows::text(std::size_t row, std::size_t parameter) const {
    const short_text& text = columns_[parameter].chunks[row / CHUNK]->texts[row % CHUNK];
    return text.fits() ? text.view() : long_texts_.at(row * columns_.size() + parameter);
}

double sample_rows::value(std::size_t row, std::size_t parameter) const {
    return columns_[parameter].chunks[row / CHUNK]->values[row % CHUNK];
}

double sample_rows::highest(std::size_t parameter) const {
    const column& c = columns_[parameter];
    return rows_ > 1 ? std::fmax(c.highest, c.newest_number) : NO_NUMBER;
}

double sample_rows::lowest(std::size_t parameter) const {
    const column& c = columns_[parameter];
    return rows_ > 1 ? std::fmin(c.lowest, c.newest_number) : NO_NUMBER;
}

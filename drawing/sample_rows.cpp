#include "sample_rows.h"

#include <cstring>
#include <limits>

namespace {
constexpr double NO_NUMBER = std::numeric_limits<double>::quiet_NaN();

struct adder {
    sample_stretch sum;

    void numbers(const number_run& run, std::size_t first_row, std::size_t end_row) {
        sum.append(sample_stretch::of_numbers(run, first_row, end_row));
    }
    void gap() { sum.append(sample_stretch::of_gap()); }
    bool block(const value_span&, const sample_stretch& stretch) {
        sum.append(stretch);
        return true;
    }
};

} // namespace

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

void sample_rows::append_fresh_row() {
    if (rows_ > 0)
        complete_last_row();
    for (column& c : columns_) {
        if (rows_ % CHUNK == 0)
            c.chunks.push_back(std::make_unique<chunk>());
        value_at(c, rows_) = NO_NUMBER;
        c.chunks.back()->texts[rows_ % CHUNK].assign(UNFILLED);
    }
    ++rows_;
}

void sample_rows::complete_last_row() {
    for (column& c : columns_) {
        if (rows_ > 1) {
            c.highest = std::fmax(c.highest, value_at(c, rows_ - 1));
            c.lowest = std::fmin(c.lowest, value_at(c, rows_ - 1));
        }
        if (rows_ % BLOCK == 0)
            sum_up(c);
    }
}

void sample_rows::block_level::push(const sample_stretch& sum, unsigned bits) {
    if (sum.head.count == std::uint32_t{1} << bits) {
        blocks.push_back({sum.head.lowest, sum.head.highest, ALL_NUMBERS});
        return;
    }
    const value_span all = sum.all();
    blocks.push_back({all.lowest, all.highest, static_cast<std::uint32_t>(mixed.size())});
    if (mixed.size() == mixed.capacity()) // doubling would take too much memory
        mixed.reserve(mixed.size() + mixed.size() / 4 + BLOCK);
    mixed.push_back(sum);
}

sample_stretch sample_rows::block_level::at(std::size_t place, unsigned bits) const {
    const block& b = blocks[place];
    const number_run run{b.lowest, b.highest, std::uint32_t{1} << bits};
    return b.all_numbers() ? sample_stretch::of_numbers(run, place << bits, (place + 1) << bits)
                           : mixed[b.mixed];
}

// Adds the block that the last row completes, and the larger blocks that this one completes.
void sample_rows::sum_up(column& c) const {
    adder total;
    visit_rows(c, rows_ - BLOCK, rows_, total);
    sample_stretch sum = total.sum;
    for (std::size_t n = 0;; ++n) {
        if (n == c.levels.size())
            c.levels.emplace_back();
        block_level& level = c.levels[n];
        level.push(sum, row_bits(n));
        const std::size_t count = level.blocks.size();
        if (count % BLOCK != 0)
            return;
        sum = sample_stretch();
        for (std::size_t place = count - BLOCK; place < count; ++place)
            sum.append(level.at(place, row_bits(n)));
    }
}

sample_stretch sample_rows::summary(std::size_t parameter, std::size_t first,
                                    std::size_t end) const {
    adder total;
    for_each_piece(parameter, first, end, total);
    return total.sum;
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
}

std::string_view sample_rows::text(std::size_t row, std::size_t parameter) const {
    const short_text& text = columns_[parameter].chunks[row / CHUNK]->texts[row % CHUNK];
    return text.fits() ? text.view() : long_texts_.at(row * columns_.size() + parameter);
}

double sample_rows::value(std::size_t row, std::size_t parameter) const {
    return columns_[parameter].chunks[row / CHUNK]->values[row % CHUNK];
}

double sample_rows::highest(std::size_t parameter) const {
    return rows_ > 1 ? std::fmax(columns_[parameter].highest, value(rows_ - 1, parameter))
                     : NO_NUMBER;
}

double sample_rows::lowest(std::size_t parameter) const {
    return rows_ > 1 ? std::fmin(columns_[parameter].lowest, value(rows_ - 1, parameter))
                     : NO_NUMBER;
}

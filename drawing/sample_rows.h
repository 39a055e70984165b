// The samples of a run: a row for each sampling cycle, a place for each parameter. Owned by the
// screen that samples and read by the charts. A run may last a day: filing costs the same at any
// length, and a sample takes less than 48 bytes.
//
// Replies are translated once, when they are filed. The last row is the one being filled; the rows
// before it are complete and never change. For each parameter the store summarises complete rows in
// blocks of 16, these again in blocks of 16 and so on, so that any window can be summarised without
// visiting its rows.
#pragma once

#include "mac_toolies.h"
#include "sample_stretch.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// For each parameter its PID, its display text, and the upper and lower value of real-time labels.
using sample_entry = std::array<std::string, 4>;
using sample_set = std::vector<sample_entry>;

// The text of an unfilled place.
inline constexpr std::string_view UNFILLED = "-1";

class sample_rows {
  public:
    static constexpr unsigned BLOCK_BITS = 4;
    static constexpr std::size_t BLOCK = 1U << BLOCK_BITS;

    explicit sample_rows(std::size_t parameters = 0);

    std::size_t parameters() const { return columns_.size(); }
    std::size_t rows() const { return rows_; }
    bool empty() const { return rows_ == 0; }
    // Removes all rows; the parameters stay.
    void clear();

    // Completes the last row and appends one whose places are all unfilled.
    void append_fresh_row();
    // Files a reply and its translation in the last row, replacing an earlier one. Ignored if the
    // place or row does not exist.
    void file(std::size_t parameter, std::string_view reply, const translated& meaning);

    std::string_view text(std::size_t row, std::size_t parameter) const;
    // NaN for an unusable reply and for an unfilled place.
    double value(std::size_t row, std::size_t parameter) const;
    bool filled(std::size_t row, std::size_t parameter) const {
        return columns_[parameter].filled(row);
    }

    // The highest and lowest number of all rows but the first; NaN while there are none. Unfilled
    // places and unusable replies do not count.
    double highest(std::size_t parameter) const;
    double lowest(std::size_t parameter) const;

    // Tells `visitor` what rows [first, end) hold, in order, in as few pieces as there are blocks
    // for: void numbers(const number_run&, std::size_t first_row, std::size_t end_row) void gap()
    // bool block(const value_span& all, const sample_stretch&) If block() returns false, its parts
    // are visited instead. `all` is known without fetching the stretch, and empty if that draws
    // nothing.
    template <class Visitor>
    void for_each_piece(std::size_t parameter, std::size_t first, std::size_t end,
                        Visitor& visitor) const;
    sample_stretch summary(std::size_t parameter, std::size_t first, std::size_t end) const;

  private:
    static constexpr std::size_t CHUNK = 1024;

    class short_text {
      public:
        static constexpr std::size_t ROOM = 15;
        // False if it does not fit.
        bool assign(std::string_view text);
        bool fits() const { return length_ <= ROOM; }
        std::string_view view() const { return {room_, length_}; }

      private:
        char room_[ROOM];
        std::uint8_t length_ = 0;
    };

    struct chunk {
        std::array<double, CHUNK> values;
        std::array<short_text, CHUNK> texts;
    };

    // The span of a block's curve and, unless it holds only numbers, the index of its summary among
    // its level's mixed ones.
    struct block {
        double lowest, highest;
        std::uint32_t mixed;
        bool all_numbers() const { return mixed == ALL_NUMBERS; }
    };
    static constexpr std::uint32_t ALL_NUMBERS = 0xFFFFFFFF;

    // A block of level n covers BLOCK to the power n + 1 rows.
    struct block_level {
        std::vector<block> blocks;
        std::vector<sample_stretch> mixed;
        void push(const sample_stretch& sum, unsigned bits);
        sample_stretch at(std::size_t place, unsigned bits) const;
    };

    struct column {
        std::vector<std::unique_ptr<chunk>> chunks;
        std::vector<block_level> levels;
        double highest, lowest; // of complete rows from the second on

        bool filled(std::size_t row) const {
            const short_text& text = chunks[row / CHUNK]->texts[row % CHUNK];
            return !text.fits() || text.view() != UNFILLED;
        }
    };

    // The binary logarithm of the rows of a block of this level. Shifts: divisions would take
    // longer than everything else.
    static unsigned row_bits(std::size_t level) {
        return static_cast<unsigned>(level + 1) * BLOCK_BITS;
    }
    // The level, from 1, of the largest block that starts at `row` and ends by `end`; 0 if there is
    // none.
    static unsigned levels_of_block(std::size_t row, std::size_t end) {
        if (row >= end)
            return 0;
        const int aligned_bits = std::countr_zero(row);
        const int room_bits = std::bit_width(end - row) - 1;
        return static_cast<unsigned>(std::min(aligned_bits, room_bits)) / BLOCK_BITS;
    }
    template <class Visitor>
    static std::size_t visit_blocks(const column& c, std::size_t level, std::size_t first,
                                    std::size_t end, Visitor& visitor);
    template <class Visitor>
    static void visit_apart(const column& c, std::size_t level, std::size_t place,
                            Visitor& visitor);
    template <class Visitor>
    static void visit_rows(const column& c, std::size_t first, std::size_t end, Visitor& visitor);

    void complete_last_row();
    void sum_up(column& c) const;
    double& value_at(column& c, std::size_t row) const {
        return c.chunks[row / CHUNK]->values[row % CHUNK];
    }

    std::vector<column> columns_;
    // Texts too long for a place, by place.
    std::unordered_map<std::size_t, std::string> long_texts_;
    std::size_t rows_ = 0;
};

template <class Visitor>
void sample_rows::for_each_piece(std::size_t parameter, std::size_t first, std::size_t end,
                                 Visitor& visitor) const {
    const column& c = columns_[parameter];
    const std::size_t summed_up = c.levels.empty() ? 0 : c.levels[0].blocks.size() * BLOCK;
    for (std::size_t row = first; row < end;) {
        if (const unsigned levels = levels_of_block(row, std::min(end, summed_up)); levels > 0) {
            row = visit_blocks(c, levels - 1, row, end, visitor);
        } else {
            const std::size_t stop = std::min(end, (row / BLOCK + 1) * BLOCK);
            visit_rows(c, row, stop, visitor);
            row = stop;
        }
    }
}

// Blocks of one level, up to where a larger one may start: those with only numbers as one stretch,
// or a mixed one.
template <class Visitor>
std::size_t sample_rows::visit_blocks(const column& c, std::size_t level, std::size_t first,
                                      std::size_t end, Visitor& visitor) {
    const unsigned bits = row_bits(level);
    const std::vector<block>& blocks = c.levels[level].blocks;
    const std::size_t start = first >> bits;
    const std::size_t stop = std::min({end >> bits, blocks.size(), (start / BLOCK + 1) * BLOCK});
    std::size_t place = start;
    number_run run;
    for (; place < stop && blocks[place].all_numbers(); ++place)
        run.add({blocks[place].lowest, blocks[place].highest, std::uint32_t{1} << bits});
    if (place > start) {
        visitor.numbers(run, first, place << bits);
        return place << bits;
    }
    const block& mixed = blocks[start];
    if (!visitor.block({mixed.lowest, mixed.highest, 0}, c.levels[level].mixed[mixed.mixed]))
        visit_apart(c, level, start, visitor);
    return (start + 1) << bits;
}

template <class Visitor>
void sample_rows::visit_apart(const column& c, std::size_t level, std::size_t place,
                              Visitor& visitor) {
    const std::size_t end = (place + 1) << row_bits(level);
    std::size_t row = place << row_bits(level);
    if (level == 0)
        return visit_rows(c, row, end, visitor);
    while (row < end)
        row = visit_blocks(c, level - 1, row, end, visitor);
}

// Rows of one chunk.
template <class Visitor>
void sample_rows::visit_rows(const column& c, std::size_t first, std::size_t end,
                             Visitor& visitor) {
    const double* const values = c.chunks[first / CHUNK]->values.data() + first % CHUNK;
    const std::size_t count = end - first;
    for (std::size_t i = 0; i < count;) {
        if (std::isnan(values[i])) {
            if (c.filled(first + i))
                visitor.gap();
            ++i;
            continue;
        }
        const std::size_t start = i;
        number_run run;
        for (; i < count && !std::isnan(values[i]); ++i)
            run.add(values[i]);
        visitor.numbers(run, first + start, first + i);
    }
}

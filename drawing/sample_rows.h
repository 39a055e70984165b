// The samples of a run, one row a sampling cycle, one place a parameter; owned by the screen that
// samples and read by the charts. A run may last a day: filing costs the same at any length, and a
// sample takes less than 48 bytes.
//
// Replies are translated once, when they are filed. The last row is the one being filled; the rows
// before it are complete and never change. For each parameter the store keeps the numbers of
// complete rows summed up in blocks of 16, blocks of 16 of those and so on, so that what lies in
// any window is found without visiting its rows.
#pragma once

#include "mac_toolies.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// A place that no reply has been filed into reads so.
inline constexpr std::string_view UNFILLED = "-1";

// Consecutive samples, all of them numbers, or one that is none.
struct sample_piece {
    std::size_t row, count;
    double lowest, highest; // NaN: no number
    bool number() const { return !std::isnan(lowest); }
};

class sample_rows {
  public:
    static constexpr std::size_t BLOCK = 16;

    explicit sample_rows(std::size_t parameters = 0);

    std::size_t parameters() const { return columns_.size(); }
    std::size_t rows() const { return rows_; }
    bool empty() const { return rows_ == 0; }
    // Without rows; the parameters stay.
    void clear();

    // Completes the last row and appends one whose places are all unfilled.
    void append_fresh_row();
    // Files a reply, with what it translates to, into the last row; a second reply replaces the
    // first. A place or row that does not exist is ignored.
    void file(std::size_t parameter, std::string_view reply, const translated& meaning);

    std::string_view text(std::size_t row, std::size_t parameter) const;
    // NaN for an unusable reply and for an unfilled place.
    double value(std::size_t row, std::size_t parameter) const;
    bool filled(std::size_t row, std::size_t parameter) const {
        return text(row, parameter) != UNFILLED;
    }

    // The highest and lowest number, as a chart's labels count them, of all rows but the first; NaN
    // while there are none.
    double highest(std::size_t parameter) const;
    double lowest(std::size_t parameter) const;

    // Calls `visit(const sample_piece&)` for the samples of rows [first, end) in order, in as few
    // pieces as there are blocks for. Unfilled places are passed over.
    template <class Visitor>
    void for_each_piece(std::size_t parameter, std::size_t first, std::size_t end,
                        Visitor visit) const;

    // The number that a chart's labels take a display text for: 0 for "~" and other texts without a
    // number, NaN for "-" and for no text.
    static double chart_number(std::string_view display_text);

  private:
    static constexpr std::size_t CHUNK = 1024;

    class short_text {
      public:
        static constexpr std::size_t ROOM = 15;
        // False when it does not fit.
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

    struct block {
        double lowest, highest; // NaN when not all of its samples are numbers
        bool whole() const { return !std::isnan(lowest); }
    };

    struct column {
        std::vector<std::unique_ptr<chunk>> chunks;
        std::vector<std::vector<block>>
            levels;               // a block of level n sums up BLOCK to the power n + 1 rows
        double newest_number = 0; // of the last row, as labels count it
        double highest, lowest;   // of complete rows from the second on
    };

    // The level, and its blocks' size, of the largest block that starts at `row`, ends in time and
    // holds nothing but numbers; none when there is none.
    struct level_found {
        const std::vector<block>* level = nullptr;
        std::size_t size = 1;
    };
    static level_found largest_block(const column& c, std::size_t row, std::size_t end);
    template <class Visitor>
    static std::size_t visit_blocks(const std::vector<block>& level, std::size_t size,
                                    std::size_t first, std::size_t end, Visitor& visit);
    template <class Visitor>
    std::size_t visit_rows(const column& c, std::size_t parameter, std::size_t first,
                           std::size_t end, Visitor& visit) const;

    void complete_last_row();
    void sum_up(column& c) const;
    double& value_at(column& c, std::size_t row) const {
        return c.chunks[row / CHUNK]->values[row % CHUNK];
    }

    std::vector<column> columns_;
    // Texts that are longer than a place holds, by place.
    std::unordered_map<std::size_t, std::string> long_texts_;
    std::size_t rows_ = 0;
};

template <class Visitor>
void sample_rows::for_each_piece(std::size_t parameter, std::size_t first, std::size_t end,
                                 Visitor visit) const {
    const column& c = columns_[parameter];
    for (std::size_t row = first; row < end;) {
        const auto [level, size] = largest_block(c, row, end);
        row = level != nullptr
                  ? visit_blocks(*level, size, row, end, visit)
                  : visit_rows(c, parameter, row, std::min(end, (row / BLOCK + 1) * BLOCK), visit);
    }
}

// Blocks of one level, up to where a larger one may start.
template <class Visitor>
std::size_t sample_rows::visit_blocks(const std::vector<block>& level, std::size_t size,
                                      std::size_t first, std::size_t end, Visitor& visit) {
    const std::size_t start = first / size;
    const std::size_t stop = std::min({end / size, level.size(), (start / BLOCK + 1) * BLOCK});
    block sum = level[start];
    std::size_t place = start + 1;
    for (; place < stop && level[place].whole(); ++place) {
        sum.lowest = std::min(sum.lowest, level[place].lowest);
        sum.highest = std::max(sum.highest, level[place].highest);
    }
    visit(sample_piece{first, (place - start) * size, sum.lowest, sum.highest});
    return place * size;
}

// Rows of one block.
template <class Visitor>
std::size_t sample_rows::visit_rows(const column& c, std::size_t parameter, std::size_t first,
                                    std::size_t end, Visitor& visit) const {
    const double* const values = c.chunks[first / CHUNK]->values.data() + first % CHUNK;
    const std::size_t count = end - first;
    for (std::size_t i = 0; i < count;) {
        sample_piece piece{first + i, 1, values[i], values[i]};
        if (!piece.number() && !filled(first + i, parameter)) {
            ++i;
            continue;
        }
        for (++i; i < count && piece.number() && !std::isnan(values[i]); ++i) {
            piece.lowest = std::min(piece.lowest, values[i]);
            piece.highest = std::max(piece.highest, values[i]);
            ++piece.count;
        }
        visit(piece);
    }
    return end;
}

// A summary of consecutive samples of one parameter, which can be drawn without visiting them. They
// consist of numbers, gaps (replies without a number) and unfilled places, which are ignored.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

// The part of the value axis that a curve's segments cover.
struct value_span {
    double lowest, highest;
    double bridged; // the widest gap inside that is included although nothing covers it

    bool empty() const { return lowest > highest; }
    bool covers(const value_span& other) const {
        return lowest <= other.lowest && highest >= other.highest;
    }
    bool meets(const value_span& other) const {
        return lowest <= other.highest && highest >= other.lowest;
    }
    value_span joined(const value_span& other) const {
        if (covers(other))
            return *this;
        if (other.covers(*this))
            return other;
        return {std::min(lowest, other.lowest), std::max(highest, other.highest),
                std::max({bridged, other.bridged, lowest - other.highest, other.lowest - highest})};
    }
};

inline constexpr value_span NO_SPAN{std::numeric_limits<double>::infinity(),
                                    -std::numeric_limits<double>::infinity(), 0};

// Numbers that follow each other without a gap.
struct number_run {
    double lowest = NO_SPAN.lowest, highest = NO_SPAN.highest;
    std::uint32_t count = 0;

    value_span span() const { return {lowest, highest, 0}; }
    void add(double value) {
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
        ++count;
    }
    void add(const number_run& next) {
        lowest = std::min(lowest, next.lowest);
        highest = std::max(highest, next.highest);
        count += next.count;
    }
};

// A few disjoint spans, in order; if there are too many, the nearest ones are merged.
class value_spans {
  public:
    value_spans() {} // leaves unused elements uninitialised
    const value_span* begin() const { return spans_.data(); }
    const value_span* end() const { return spans_.data() + count_; }
    double lowest() const { return count_ > 0 ? spans_[0].lowest : NO_SPAN.lowest; }
    double highest() const { return count_ > 0 ? spans_[count_ - 1].highest : NO_SPAN.highest; }
    void add(value_span added);

  private:
    static constexpr std::size_t MOST = 2;
    std::array<value_span, MOST> spans_; // the first `count_` of them
    std::uint32_t count_ = 0;
};

struct sample_stretch {
    number_run head;             // the numbers before the first gap, or all
    number_run tail;             // the numbers after the last gap
    std::uint32_t first_row = 0; // of the head
    std::uint32_t last_row = 0;  // of the tail, or of the head without a gap
    // What the runs between gaps cover; a single number between two gaps draws nothing.
    value_spans inner;
    std::uint32_t inner_points = 0;
    bool gapped = false;

    static sample_stretch of_numbers(const number_run& run, std::size_t row, std::size_t end_row) {
        sample_stretch numbers;
        numbers.head = run;
        numbers.first_row = static_cast<std::uint32_t>(row);
        numbers.last_row = static_cast<std::uint32_t>(end_row - 1);
        return numbers;
    }
    static sample_stretch of_gap() {
        sample_stretch gap;
        gap.gapped = true;
        return gap;
    }

    // From the lowest to the highest number, except single ones between two gaps.
    value_span all() const {
        return {std::min({head.lowest, tail.lowest, inner.lowest()}),
                std::max({head.highest, tail.highest, inner.highest()}), 0};
    }
    const number_run& open_end() const { return gapped ? tail : head; }

    void append(const sample_stretch& next) {
        if (head.count == 0)
            first_row = next.first_row;
        number_run& open = gapped ? tail : head;
        open.add(next.head);
        if (next.open_end().count > 0)
            last_row = next.last_row;
        if (!next.gapped)
            return;
        if (gapped && open.count > 1) {
            inner.add(open.span());
            inner_points += open.count;
        }
        for (const value_span& span : next.inner)
            inner.add(span);
        inner_points += next.inner_points;
        tail = next.tail;
        gapped = true;
    }
};

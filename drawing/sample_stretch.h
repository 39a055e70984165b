// What consecutive samples of one parameter add up to, so that they can be drawn without visiting
// them one by one. Made of numbers, of gaps (replies that are no numbers) and of unfilled places,
// which count as if they were not there.
#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>

// Numbers that follow each other without a gap.
struct number_run {
    double lowest = std::numeric_limits<double>::infinity();
    double highest = -std::numeric_limits<double>::infinity();
    std::size_t count = 0;

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

struct sample_stretch {
    number_run head;           // the numbers before the first gap: all, when there is none
    number_run tail;           // the numbers behind the last gap
    std::size_t first_row = 0; // of the head
    std::size_t last_row = 0;  // of the tail, or of the head when there is no gap
    bool gapped = false;
    // Between gaps; a number alone between two gaps shows nothing and is left out.
    std::size_t inner_runs = 0;
    number_run inner; // all of them together

    static sample_stretch of_numbers(const number_run& run, std::size_t row, std::size_t end_row) {
        sample_stretch numbers;
        numbers.head = run;
        numbers.first_row = row;
        numbers.last_row = end_row - 1;
        return numbers;
    }
    static sample_stretch of_gap() {
        sample_stretch gap;
        gap.gapped = true;
        return gap;
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
        if (gapped && open.count > 1)
            add_inner(1, open);
        add_inner(next.inner_runs, next.inner);
        tail = next.tail;
        gapped = true;
    }

  private:
    void add_inner(std::size_t runs, const number_run& together) {
        inner_runs += runs;
        inner.add(together);
    }
};

#include "curve_reduction.h"

#include <algorithm>
#include <cmath>

namespace {

// Points this far outside are moved nearer, for the painter's sake; what is seen of their segments
// stays.
constexpr int FARTHEST = 1 << 14;

class run_collector {
  public:
    run_collector(const sample_rows& samples, std::size_t parameter, const chart_area& area,
                  const chart_limits& limits)
        : samples_(samples), parameter_(parameter), area_(area), limits_(limits) {
        runs_.reserve(static_cast<std::size_t>(std::max(area.width, 0)) + 1);
    }

    void start_column(int x) {
        finish_run();
        x_ = x;
        column_start_ = runs_.size();
    }

    void add(const sample_piece& piece) {
        if (!piece.number()) {
            finish_run();
            joined_ = false;
            return;
        }
        if (open_.count == 0) {
            open_ = piece;
        } else {
            open_.lowest = std::min(open_.lowest, piece.lowest);
            open_.highest = std::max(open_.highest, piece.highest);
            open_.count += piece.count;
        }
        last_row_ = piece.row + piece.count - 1;
    }

    std::vector<column_run> take() {
        finish_run();
        return std::move(runs_);
    }

  private:
    int y_of(double value) const {
        return std::clamp(scale_y(value, area_, limits_), -FARTHEST, FARTHEST);
    }

    void finish_run() {
        if (open_.count == 0)
            return;
        const int one_end = y_of(open_.lowest);
        const int other_end = y_of(open_.highest);
        merge_latest();
        runs_.push_back({x_, y_of(samples_.value(open_.row, parameter_)),
                         std::min(one_end, other_end), std::max(one_end, other_end),
                         y_of(samples_.value(last_row_, parameter_)), open_.count, joined_});
        joined_ = true;
        open_.count = 0;
    }

    // The latest run of this column ended in a gap. Where it began with one too, all it adds is its
    // extent: nothing without a segment of its own, and nothing by itself where it meets another
    // run. This keeps a column's runs fewer than its pixels, however many gaps it has.
    void merge_latest() {
        if (runs_.size() == column_start_ || runs_.back().joined)
            return;
        const column_run latest = runs_.back();
        const auto meets = [&](const column_run& other) {
            return other.count > 1 && other.low <= latest.high && other.high >= latest.low;
        };
        const auto end = runs_.end() - 1;
        const auto other =
            std::find_if(runs_.begin() + static_cast<std::ptrdiff_t>(column_start_), end, meets);
        if (latest.count > 1 && other == end)
            return;
        if (latest.count > 1) {
            other->low = std::min(other->low, latest.low);
            other->high = std::max(other->high, latest.high);
        }
        runs_.pop_back();
    }

    const sample_rows& samples_;
    std::size_t parameter_;
    const chart_area& area_;
    const chart_limits& limits_;
    std::vector<column_run> runs_;
    std::size_t column_start_ = 0;
    int x_ = 0;
    sample_piece open_{};      // the run being collected; without samples there is none
    std::size_t last_row_ = 0; // of that run
    bool joined_ = false;      // a segment leads to it
};

// The first row at or after `row` whose column is not `x`.
std::size_t end_of_column(std::size_t row, std::size_t end, int x, const chart_area& area,
                          const chart_limits& limits) {
    const auto column_of = [&](std::size_t r) {
        return scale_x(static_cast<double>(r), area, limits);
    };
    const double rows_a_column = (limits.max_x - limits.min_x) / std::max(area.width, 1);
    const double guess = limits.min_x + (x - area.x + 1) * rows_a_column;
    std::size_t found = std::clamp(static_cast<std::size_t>(std::max(guess, 0.0)), row + 1, end);
    // Rounding may put the guess a row beside the boundary.
    while (found > row + 1 && column_of(found - 1) != x)
        --found;
    while (found < end && column_of(found) == x)
        ++found;
    return found;
}

} // namespace

std::vector<column_run> reduce_curve(const sample_rows& samples, std::size_t parameter,
                                     const row_window& window, const chart_area& area,
                                     const chart_limits& limits) {
    run_collector collector(samples, parameter, area, limits);
    const std::size_t end = window.first + window.count;
    for (std::size_t row = window.first; row < end;) {
        const int x = scale_x(static_cast<double>(row), area, limits);
        const std::size_t next = end_of_column(row, end, x, area, limits);
        collector.start_column(x);
        samples.for_each_piece(parameter, row, next,
                               [&](const sample_piece& piece) { collector.add(piece); });
        row = next;
    }
    return collector.take();
}

#include "curve_reduction.h"

#include <algorithm>
#include <cmath>

namespace {

// Points this far outside are moved nearer, for the painter's sake; what is seen of their segments stays.
constexpr int FARTHEST = 1 << 14;

class run_collector {
  public:
    run_collector(const chart_area& area, const chart_limits& limits) : area_(area), limits_(limits) {}

    void start_column(int x) {
        x_ = x;
        column_start_ = runs_.size();
        open_ = false;
    }

    void add(const sample_piece& piece) {
        if (piece.count == 0) {
            open_ = joined_ = false;
            return;
        }
        const int first = y_of(piece.first);
        const int one_end = y_of(piece.lowest);
        const int other_end = y_of(piece.highest);
        const int low = std::min(one_end, other_end);
        const int high = std::max(one_end, other_end);
        if (!open_) {
            drop_hidden();
            runs_.push_back({x_, first, low, high, first, 0, joined_});
        }
        column_run& run = runs_.back();
        run.low = std::min(run.low, low);
        run.high = std::max(run.high, high);
        run.last = y_of(piece.last);
        run.count += piece.count;
        open_ = joined_ = true;
    }

    std::vector<column_run> take() { return std::move(runs_); }

  private:
    int y_of(double value) const { return std::clamp(scale_y(value, area_, limits_), -FARTHEST, FARTHEST); }

    // A run between two gaps of one column adds nothing where another run of the column already is, and nothing
    // at all when it has no segment. This keeps a column's runs fewer than its pixels, however many gaps it has.
    void drop_hidden() {
        if (runs_.size() == column_start_)
            return;
        const column_run& latest = runs_.back();
        if (latest.joined)
            return;
        const auto hides = [&](const column_run& other) {
            return other.count > 1 && other.low <= latest.low && other.high >= latest.high;
        };
        const auto begin = runs_.begin() + static_cast<std::ptrdiff_t>(column_start_);
        if (latest.count == 1 || std::any_of(begin, runs_.end() - 1, hides))
            runs_.pop_back();
    }

    const chart_area& area_;
    const chart_limits& limits_;
    std::vector<column_run> runs_;
    std::size_t column_start_ = 0;
    int x_ = 0;
    bool open_ = false;   // the next sample continues the latest run
    bool joined_ = false; // the next sample follows a number
};

// The first row at or after `row` whose column is not `x`.
std::size_t end_of_column(std::size_t row, std::size_t end, int x, const chart_area& area,
                          const chart_limits& limits) {
    const auto column_of = [&](std::size_t r) { return scale_x(static_cast<double>(r), area, limits); };
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

std::vector<column_run> reduce_curve(const sample_rows& samples, std::size_t parameter, const row_window& window,
                                     const chart_area& area, const chart_limits& limits) {
    run_collector collector(area, limits);
    const std::size_t end = window.first + window.count;
    for (std::size_t row = window.first; row < end;) {
        const int x = scale_x(static_cast<double>(row), area, limits);
        const std::size_t next = end_of_column(row, end, x, area, limits);
        collector.start_column(x);
        samples.for_each_piece(parameter, row, next, [&](const sample_piece& piece) { collector.add(piece); });
        row = next;
    }
    return collector.take();
}

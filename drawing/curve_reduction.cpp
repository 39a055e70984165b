#include "curve_reduction.h"

#include <algorithm>
#include <cmath>

namespace {

// Extents this near are painted as one.
constexpr int TOUCHING = 2;

// So many blocks of a column are looked into for what a block's sum cannot tell: whether its runs
// between gaps leave something open between the lowest and the highest. Enough for 100,000 rows to
// be exact; beyond, a curve that jumps between far-off values with gaps at every jump may lack
// some of its columns' pixels, but never shows one too many.
constexpr int MOST_TAKEN_APART = 48;

class run_collector {
  public:
    run_collector(const sample_rows& samples, std::size_t parameter, const chart_area& area,
                  const chart_limits& limits)
        : samples_(samples), parameter_(parameter), area_(area), limits_(limits) {}

    void start_column(int x) {
        x_ = x;
        column_start_ = runs_.size();
        taken_apart_ = 0;
    }

    // False when the stretch is needed in smaller ones.
    bool add(const sample_stretch& stretch) {
        if (stretch.inner_runs > 1 && !needs_no_look(stretch.inner) &&
            ++taken_apart_ <= MOST_TAKEN_APART)
            return false;
        extend(stretch.head, stretch.first_row, stretch.last_row);
        if (!stretch.gapped)
            return true;
        end_in_gap();
        if (stretch.inner_runs > 0)
            add_inner(stretch);
        // No segment leads to where it begins.
        extend(stretch.tail, stretch.last_row, stretch.last_row);
        return true;
    }

    void end_column() {
        if (open_.count == 0)
            return;
        push_open_run();
        joined_ = true;
    }

    std::vector<column_run> take() { return std::move(runs_); }

  private:
    struct extent {
        int low, high;
    };

    int y_of(double value) const { return scale_y(value, area_, limits_); }
    int y_of_row(std::size_t row) const { return y_of(samples_.value(row, parameter_)); }
    extent extent_of(const number_run& run) const {
        const int one_end = y_of(run.lowest);
        const int other_end = y_of(run.highest);
        return {std::min(one_end, other_end), std::max(one_end, other_end)};
    }

    void extend(const number_run& run, std::size_t first_row, std::size_t last_row) {
        if (run.count == 0)
            return;
        if (open_.count == 0)
            first_row_ = first_row;
        open_.add(run);
        last_row_ = last_row;
    }

    void push_open_run() {
        const auto [low, high] = extent_of(open_);
        runs_.push_back(
            {x_, y_of_row(first_row_), low, high, y_of_row(last_row_), open_.count, joined_});
        open_ = number_run();
    }

    // Where the run began with a gap too, all it adds to the column is its extent: nothing without
    // a segment of its own.
    void end_in_gap() {
        if (open_.count > 0 && joined_)
            push_open_run();
        else if (open_.count > 1)
            add_extent(extent_of(open_), open_.count);
        open_ = number_run();
        joined_ = false;
    }

    void add_inner(const sample_stretch& stretch) {
        const extent all = extent_of(stretch.inner);
        if (stretch.inner_runs == 1 || needs_no_look(stretch.inner))
            return add_extent(all, stretch.inner.count);
        add_extent({all.low, all.low}, stretch.inner.count);
        add_extent({all.high, all.high}, stretch.inner.count);
    }

    // Whether nothing is open between a hull's ends, or the column already shows it all.
    bool needs_no_look(const number_run& hull) const {
        const auto [low, high] = extent_of(hull);
        if (static_cast<double>(high) - low <= TOUCHING)
            return true;
        return std::any_of(runs_.begin() + static_cast<std::ptrdiff_t>(column_start_), runs_.end(),
                           [low = low, high = high](const column_run& run) {
                               return run.count > 1 && run.low <= low && run.high >= high;
                           });
    }

    // Widens what touches it, so that a column's runs stay fewer than its pixels.
    void add_extent(extent added, std::size_t points) {
        for (std::size_t i = column_start_; i < runs_.size(); ++i) {
            column_run& run = runs_[i];
            const double apart = std::max(static_cast<double>(run.low) - added.high,
                                          static_cast<double>(added.low) - run.high);
            // Segments beside each other are not yet opaque, as those over each other are.
            const bool single = run.count == 2 && points == 2;
            if (run.count > 1 && apart <= (single ? 0 : TOUCHING)) {
                run.low = std::min(run.low, added.low);
                run.high = std::max(run.high, added.high);
                run.count += points;
                return;
            }
        }
        runs_.push_back({x_, added.low, added.low, added.high, added.high, points, false});
    }

    const sample_rows& samples_;
    std::size_t parameter_;
    const chart_area& area_;
    const chart_limits& limits_;
    std::vector<column_run> runs_;
    std::size_t column_start_ = 0;
    int taken_apart_ = 0; // blocks of this column
    int x_ = 0;
    number_run open_; // the run being collected; without samples there is none
    std::size_t first_row_ = 0, last_row_ = 0; // of that run
    bool joined_ = false;                      // a segment leads to it
};

// The first row at or after `row` whose column is not `x`. Columns only ever move one way.
std::size_t end_of_column(std::size_t row, std::size_t end, int x, const chart_area& area,
                          const chart_limits& limits) {
    const auto in_column = [&](std::size_t r) {
        return scale_x(static_cast<double>(r), area, limits) == x;
    };
    const double rows_a_column = (limits.max_x - limits.min_x) / std::max(area.width, 1);
    const double guess = limits.min_x + (static_cast<double>(x) - area.x + 1) * rows_a_column;
    // Rounding may put the guess a row beside the boundary.
    if (guess > 0 && guess < static_cast<double>(end)) {
        const auto near = static_cast<std::size_t>(guess);
        for (const std::size_t next : {near + 1, near})
            if (next > row && next < end && in_column(next - 1) && !in_column(next))
                return next;
    }
    std::size_t inside = row;
    std::size_t beyond = end;
    while (beyond - inside > 1) {
        const std::size_t middle = inside + (beyond - inside) / 2;
        (in_column(middle) ? inside : beyond) = middle;
    }
    return beyond;
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
        samples.for_each_stretch(parameter, row, next, [&](const sample_stretch& stretch) {
            return collector.add(stretch);
        });
        collector.end_column();
        row = next;
    }
    return collector.take();
}

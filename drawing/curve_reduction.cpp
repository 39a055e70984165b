#include "curve_reduction.h"

#include <algorithm>
#include <cmath>

namespace {

// Extents this close are painted as one.
constexpr int TOUCHING = 2;

// How many blocks of a column are split where their summary bridges a gap that might be visible.
// Enough to be exact for 100,000 rows; beyond that, a curve that jumps between many distant values
// with a gap at every jump may lack some pixels, but never shows an extra one.
constexpr int MOST_TAKEN_APART = 48;

class run_collector {
  public:
    run_collector(const sample_rows& samples, std::size_t parameter, const axis_scale& scale)
        : samples_(samples), parameter_(parameter), y_of(scale) {}

    void start_column(int x) {
        x_ = x;
        column_start_ = runs_.size();
        taken_apart_ = 0;
        shown_ = NO_SPAN;
    }

    void numbers(const number_run& run, std::size_t first_row, std::size_t end_row) {
        fetch_open_end();
        extend(run, first_row, end_row - 1);
    }

    void gap() {
        fetch_open_end();
        end_in_gap();
    }

    // False if it is needed in smaller pieces.
    bool block(const value_span& all, const sample_stretch& stretch) {
        // If everything is shown already, only the open end still matters, and only of the last
        // block.
        if (!joined_ && !all.empty() && shown_.covers(all) &&
            (ends_as_ != nullptr || shown_.covers(open_.span()))) {
            ends_as_ = &stretch;
            return true;
        }
        fetch_open_end();
        if (std::ranges::any_of(stretch.inner,
                                [this](const value_span& s) { return is_open(s); }) &&
            ++taken_apart_ <= MOST_TAKEN_APART)
            return false;
        extend(stretch.head, stretch.first_row, stretch.last_row);
        if (!stretch.gapped)
            return true;
        end_in_gap();
        for (const value_span& span : stretch.inner)
            add_inner(span, stretch.inner_points);
        // No segment leads to its start.
        extend(stretch.tail, stretch.last_row, stretch.last_row);
        return true;
    }

    void end_column() {
        fetch_open_end();
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

    int y_of_row(std::size_t row) const { return y_of(samples_.value(row, parameter_)); }
    extent extent_of(double lowest, double highest) const {
        const int one_end = y_of(lowest);
        const int other_end = y_of(highest);
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

    void fetch_open_end() {
        if (ends_as_ == nullptr)
            return;
        open_ = ends_as_->open_end();
        first_row_ = last_row_ = ends_as_->last_row;
        ends_as_ = nullptr;
    }

    void push_open_run() {
        const auto [low, high] = extent_of(open_.lowest, open_.highest);
        runs_.push_back(
            {x_, y_of_row(first_row_), low, high, y_of_row(last_row_), open_.count, joined_});
        open_ = number_run();
    }

    // If the run also began with a gap, it only adds its extent: nothing without a segment.
    void end_in_gap() {
        if (open_.count > 0 && joined_)
            push_open_run();
        else if (open_.count > 1)
            add_span(open_.span(), open_.count);
        open_ = number_run();
        joined_ = false;
    }

    // Whether a gap that the span bridges would be visible in this column.
    bool is_open(const value_span& span) const {
        if (span.bridged == 0 || shown_.covers(span))
            return false;
        const auto [start, end] = extent_of(0, span.bridged);
        if (static_cast<double>(end) - start < TOUCHING)
            return false;
        const auto [low, high] = extent_of(span.lowest, span.highest);
        return std::none_of(runs_.begin() + static_cast<std::ptrdiff_t>(column_start_), runs_.end(),
                            [low = low, high = high](const column_run& run) {
                                return run.count > 1 && run.low <= low && run.high >= high;
                            });
    }

    void add_inner(const value_span& span, std::size_t points) {
        if (!is_open(span))
            return add_span(span, points);
        add_span({span.lowest, span.lowest, 0}, points);
        add_span({span.highest, span.highest, 0}, points);
    }

    void add_span(const value_span& span, std::size_t points) {
        if (shown_.covers(span))
            return;
        add_extent(extent_of(span.lowest, span.highest), points);
        if (points <= 2) // not opaque yet
            return;
        if (shown_.meets(span))
            shown_ = shown_.joined(span);
        else if (span.highest - span.lowest > shown_.highest - shown_.lowest)
            shown_ = span;
    }

    // Extends an adjoining run, so that a column has fewer runs than pixels.
    void add_extent(extent added, std::size_t points) {
        for (std::size_t i = column_start_; i < runs_.size(); ++i) {
            column_run& run = runs_[i];
            const double apart = std::max(static_cast<double>(run.low) - added.high,
                                          static_cast<double>(added.low) - run.high);
            // Unlike overlapping segments, adjacent ones are not opaque.
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
    const axis_scale y_of;
    std::vector<column_run> runs_;
    std::size_t column_start_ = 0;
    int taken_apart_ = 0;        // blocks of this column
    value_span shown_ = NO_SPAN; // the widest span of the column so far
    int x_ = 0;
    const sample_stretch* ends_as_ =
        nullptr;      // where the current run's end is still to be read from
    number_run open_; // the current run; none if it has no samples
    std::size_t first_row_ = 0, last_row_ = 0; // of that run
    bool joined_ = false;                      // a segment leads to it
};

// The first row of each column. Columns only move forward.
class column_walk {
  public:
    column_walk(const chart_area& area, const chart_limits& limits)
        : x_of(scale_of_x(area, limits)), left_(area.x), min_(limits.min_x),
          rows_a_column_((limits.max_x - limits.min_x) / std::max(area.width, 1)) {}

    int column_of(std::size_t row) const { return x_of(static_cast<double>(row)); }

    // The first row after `row` that is in another column; `end` if there is none.
    std::size_t next_column(std::size_t row, std::size_t end) const {
        const int x = column_of(row);
        const double guess = min_ + (static_cast<double>(x) - left_ + 1) * rows_a_column_;
        // Rounding may put the guess one row off the boundary.
        if (guess > 0 && guess < static_cast<double>(end)) {
            const auto near = static_cast<std::size_t>(guess);
            for (const std::size_t next : {near + 1, near})
                if (next > row && next < end && column_of(next - 1) == x && column_of(next) != x)
                    return next;
        }
        std::size_t inside = row;
        std::size_t beyond = end;
        while (beyond - inside > 1) {
            const std::size_t middle = inside + (beyond - inside) / 2;
            (column_of(middle) == x ? inside : beyond) = middle;
        }
        return beyond;
    }

  private:
    const axis_scale x_of;
    double left_, min_, rows_a_column_;
};

} // namespace

std::vector<column_run> reduce_curve(const sample_rows& samples, std::size_t parameter,
                                     const row_window& window, const chart_area& area,
                                     const chart_limits& limits) {
    run_collector collector(samples, parameter, scale_of_y(area, limits));
    const column_walk columns(area, limits);
    const std::size_t end = window.first + window.count;
    for (std::size_t row = window.first; row < end;) {
        const std::size_t next = columns.next_column(row, end);
        collector.start_column(columns.column_of(row));
        samples.for_each_piece(parameter, row, next, collector);
        collector.end_column();
        row = next;
    }
    return collector.take();
}

// Reduces a curve of any number of samples to what its pixel columns show. Drawing the reduced
// curve gives the same picture as drawing every segment (M4 aggregation: Jugel et al., VLDB 2014).
#pragma once

#include "chart_geometry.h"
#include "sample_rows.h"

#include <cstdint>
#include <vector>

// Consecutive samples without a gap in one pixel column.
struct column_run {
    int x;
    int first, low, high, last; // y of its first, lowest, highest and last point
    std::size_t count;
    bool joined; // a segment leads here from the previous run
};

// A sample without a number leaves a gap: no segment leads to or from it. The curve continues
// across unfilled places.
std::vector<column_run> reduce_curve(const sample_rows& samples, std::size_t parameter,
                                     const row_window& window, const chart_area& area,
                                     const chart_limits& limits);

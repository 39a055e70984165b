// A curve of any number of samples, reduced to what its pixel columns show of it. Drawing the
// reduced curve gives the picture that drawing every segment gives (M4 aggregation: Jugel et al.,
// VLDB 2014).
#pragma once

#include "chart_geometry.h"
#include "sample_rows.h"

#include <cstdint>
#include <vector>

// Consecutive samples that fall into one pixel column and follow each other without a gap.
struct column_run {
    int x;
    int first, low, high, last; // y of its first, lowest, highest and last point
    std::size_t count;
    bool joined; // a segment leads here from the run before
};

// A sample that is no number leaves a gap: no segment leads to it or from it. Unfilled places are
// bridged.
std::vector<column_run> reduce_curve(const sample_rows& samples, std::size_t parameter,
                                     const row_window& window, const chart_area& area,
                                     const chart_limits& limits);

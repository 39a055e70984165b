// Where a chart's value axis ends.
#pragma once

// Moves an axis limit outward by one step of its decade: upwards for the upper limit (ceiling),
// downwards for the lower. Moves from the truncated value, and one whole step even from an exact
// multiple: (37, true) is 40, (37, false) is 20, (40, true) is 50. Values from 100,000 on, and
// those whose hundredths are 0, 9 or 99, have no step and give 0, as does NaN.
double get_ceiling_or_floor(double value, bool ceiling);

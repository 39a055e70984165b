#include "axis_limit.h"
#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "parameters.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr int LABEL_DECIMALS = 6;
constexpr double QUARTER = 0.25;
constexpr double HALF_SPAN_OF_NOTHING = 1;

struct span {
    double lower, upper;
};

// A value that never changed is shown within its full range: an axis without a span would put the
// curve outside the plot.
span with_room(span values, span catalogue) {
    if (values.upper != values.lower)
        return values;
    if (catalogue.upper == catalogue.lower)
        return {values.lower - HALF_SPAN_OF_NOTHING, values.upper + HALF_SPAN_OF_NOTHING};
    return {std::fmin(catalogue.lower, values.lower), std::fmax(catalogue.upper, values.upper)};
}

} // namespace

double drawChartyItem::get_OBDVal(std::string_view reply) const {
    const std::string text = toolies.translateResponse(reply);
    return text.empty() || text == "-" ? std::numeric_limits<double>::quiet_NaN()
                                       : leading_number(text);
}

label_records drawChartyItem::work_out_labels(const sample_rows& samples) const {
    label_records labels;
    for (std::size_t i = 0; i < _pid_logitems_list.size(); ++i) {
        const std::string& pid = _pid_logitems_list[i];
        const auto [min, max] = parameter_range(toolies, pid);
        const double quarter = (max - min) * QUARTER;
        span shown{min + quarter, max - quarter};
        if (i < samples.parameters() && !std::isnan(samples.highest(i)))
            shown = {std::fmin(max, samples.lowest(i)), std::fmax(min, samples.highest(i))};
        shown = with_room(shown, {min, max});
        labels.push_back({names_[i], parameter_units(toolies, pid),
                          fixed_decimals(shown.upper, LABEL_DECIMALS),
                          fixed_decimals(shown.lower, LABEL_DECIMALS)});
    }
    return labels;
}

label_records drawChartyItem::work_out_labels_4_realtime() const {
    label_records labels;
    for (std::size_t i = 0; i < _pid_logitems_list.size(); ++i) {
        const std::string& pid = _pid_logitems_list[i];
        label_record label{names_[i], parameter_units(toolies, pid), "", ""};
        if (!some_sampling_done) {
            const auto [min, max] = parameter_range(toolies, pid);
            const double quarter = (max - min) * QUARTER;
            label.upper = fixed_decimals(min + quarter, LABEL_DECIMALS);
            label.lower = fixed_decimals(max - quarter, LABEL_DECIMALS);
        } else if (i < cur_sample_set.size()) {
            label.upper = cur_sample_set[i][2];
            label.lower = cur_sample_set[i][3];
        }
        labels.push_back(std::move(label));
    }
    return labels;
}

// Without a step the limit becomes 0, which may exclude the value: then the value itself is the
// limit.
double drawChartyItem::upper_limit(const label_record& record) {
    const double value = leading_number(record.upper);
    const double moved = get_ceiling_or_floor(value, true);
    return moved == 0 ? std::fmax(value, moved) : moved;
}

double drawChartyItem::lower_limit(const label_record& record) {
    const double value = leading_number(record.lower);
    const double moved = get_ceiling_or_floor(value, false);
    return moved == 0 ? std::fmin(value, moved) : moved;
}

double drawChartyItem::get_width_of_axis_label(const label_record& record) const {
    const auto width = [this](double value) {
        return axis_label_widths_.of(image_font(QStringLiteral("Arial"), 10),
                                     qstring(fixed_decimals(value, 2)));
    };
    return std::max(width(upper_limit(record)), width(lower_limit(record)));
}

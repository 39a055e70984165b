#include "axis_limit.h"
#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "parameters.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int LABEL_DECIMALS = 6;
constexpr double QUARTER = 0.25;

} // namespace

double drawChartyItem::get_OBDVal(std::string_view reply) const {
    return sample_rows::chart_number(toolies.translateResponse(reply));
}

label_records drawChartyItem::work_out_labels(const sample_rows& samples) const {
    label_records labels;
    for (std::size_t i = 0; i < _pid_logitems_list.size(); ++i) {
        const std::string& pid = _pid_logitems_list[i];
        const auto [min, max] = parameter_range(toolies, pid);
        const double quarter = (max - min) * QUARTER;
        double upper = max - quarter;
        double lower = min + quarter;
        if (samples.rows() > 1 && i < samples.parameters()) {
            upper = std::fmax(min, samples.highest(i));
            lower = std::fmin(max, samples.lowest(i));
        }
        labels.push_back({names_[i], parameter_units(toolies, pid), fixed_decimals(upper, LABEL_DECIMALS),
                          fixed_decimals(lower, LABEL_DECIMALS)});
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

double drawChartyItem::upper_limit(const label_record& record) {
    return get_ceiling_or_floor(leading_number(record.upper), true);
}

double drawChartyItem::lower_limit(const label_record& record) {
    return get_ceiling_or_floor(leading_number(record.lower), false);
}

double drawChartyItem::get_width_of_axis_label(const label_record& record) const {
    constexpr std::size_t KEPT_WIDTHS = 64;
    const auto width = [this](double value) {
        const std::string text = fixed_decimals(value, 2);
        if (const auto found = axis_label_widths_.find(text); found != axis_label_widths_.end())
            return found->second;
        if (axis_label_widths_.size() == KEPT_WIDTHS)
            axis_label_widths_.clear();
        const QFont font = image_font(QStringLiteral("Arial"), 10);
        return axis_label_widths_[text] = text_width(font, qstring(text));
    };
    return std::max(width(upper_limit(record)), width(lower_limit(record)));
}

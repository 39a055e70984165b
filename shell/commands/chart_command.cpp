#include "canvas.h"
#include "command_functions.h"
#include "commands.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "myGauge.h"
#include "parameters.h"
#include "run_log.h"
#include "run_times.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <ostream>
#include <set>
#include <vector>

namespace {

constexpr int FAILED_STATUS = 1;
constexpr std::size_t MOST_PIDS = 2;
constexpr QSizeF CHART_SIZE(420, 230);

// The log's columns with the requested parameters, in the order requested.
std::vector<int> columns_of(const run_log& log, const std::string& path,
                            const std::vector<std::string>& pids, std::string& error) {
    std::vector<int> columns;
    for (const std::string& pid : pids) {
        const auto found = std::find(log.pids.begin(), log.pids.end(), pid);
        if (found == log.pids.end())
            error = path + ": no replies for parameter " + pid;
        columns.push_back(static_cast<int>(found - log.pids.begin()));
    }
    return columns;
}

QImage draw_chart(const desk& work, const run_log& log, const std::vector<int>& columns) {
    drawChartyItem chart(work.toolies.doors());
    chart.initWitdim(CHART_SIZE, "main");
    chart.setThumbnail(false);
    chart.set_pixel_scale(work.asked.scale);
    chart.use_this_pids(log.pids);
    chart.set_item_2_plot(columns[0]);
    chart.updateNoOfPlots({columns.begin(), columns.end()});
    sample_set values;
    for (std::size_t i = 0; i < log.pids.size(); ++i)
        values.push_back({log.pids[i], log.last_values[i].text, "0.0", "0.0"});
    chart.update_cur_sample(std::move(values));
    if (log.from)
        chart.set_time_span(length_text(*log.from) + " - " + length_text(*log.to));
    const label_records labels = chart.work_out_labels(log.samples);
    chart.draw_grid(labels, "All sampling points");
    chart.plot_array_list(log.samples, labels);
    for (const int column : std::set<int>(columns.begin(), columns.end())) {
        const label_record& label = labels[static_cast<std::size_t>(column)];
        work.out << log.pids[static_cast<std::size_t>(column)] << ' ' << label.name << ": "
                 << fixed_decimals(drawChartyItem::lower_limit(label), 2) << " to "
                 << fixed_decimals(drawChartyItem::upper_limit(label), 2) << ' ' << label.units
                 << '\n';
    }
    if (log.from)
        work.out << "Time: " << fixed_decimals(static_cast<double>(*log.from) / 1000, 3) << " to "
                 << fixed_decimals(static_cast<double>(*log.to) / 1000, 3) << " s\n";
    return chart.image();
}

QImage draw_dial(const desk& work, const run_log& log, int column) {
    const auto place = static_cast<std::size_t>(column);
    myGauge dial(work.resources, work.toolies);
    dial.set_pixel_scale(work.asked.scale);
    dial.initGauge(log.pids[place]);
    const double last = log.last_numbers[place];
    if (std::isnan(last))
        dial.draw_without_needle(face::awaiting);
    else
        dial.draw_cur_needle_value(last, std::isnan(log.last_values[place].value) ? needle::greyed
                                                                                  : needle::lit);
    work.out << log.pids[place] << ' ' << parameter_name(work.toolies, log.pids[place]) << ": "
             << log.last_values[place].text << '\n';
    return dial.image();
}

} // namespace

void check_chart(const cli_request& asked) {
    if (asked.chart_pids.empty() || asked.chart_pids.size() > MOST_PIDS)
        throw usage_error("chart needs one --pid or two");
    if (asked.dial && asked.chart_pids.size() > 1)
        throw usage_error("a dial shows one --pid");
    if (!qstring(asked.picture).endsWith(QLatin1String(".png"), Qt::CaseInsensitive))
        throw usage_error("chart needs -o FILE.png: it writes PNG and nothing else");
}

int run_chart(const desk& work) {
    const cli_request& asked = work.asked;
    const std::string path = path_of_log(asked.arguments[0], work.toolies);
    std::string error;
    const std::optional<run_log> log = read_run_log(path, work.toolies, error);
    std::vector<int> columns;
    if (log)
        columns = columns_of(*log, path, asked.chart_pids, error);
    if (!error.empty()) {
        work.err << "kestrom: " << error << '\n';
        return FAILED_STATUS;
    }
    if (!asked.dial && !log->times_complaint.empty())
        work.err << "kestrom: " << log->times_complaint << '\n';
    const QImage picture =
        asked.dial ? draw_dial(work, *log, columns[0]) : draw_chart(work, *log, columns);
    if (!picture.save(qstring(asked.picture), "PNG")) {
        work.err << "kestrom: " << asked.picture << ": cannot be written\n";
        return FAILED_STATUS;
    }
    return 0;
}

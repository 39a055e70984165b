#include "chart_command.h"

#include "canvas.h"
#include "drawChartyItem.h"
#include "fixed_decimals.h"
#include "myGauge.h"
#include "parameters.h"
#include "run_log.h"
#include "run_times.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>
#include <ostream>
#include <set>
#include <vector>

namespace {

constexpr int FAILED_STATUS = 1;
constexpr int USAGE_STATUS = 2;
constexpr std::size_t MOST_PIDS = 2;
constexpr double LEAST_SCALE = 0.1;
constexpr double MOST_SCALE = 8;
constexpr QSizeF CHART_SIZE(420, 230);

struct chart_request {
    std::string log, picture;
    std::vector<std::string> pids;
    double scale = 1;
    bool dial = false;
    std::string error;
};

// "c" and "0C" are the same PID.
std::optional<std::string> pid_of(std::string_view text) {
    unsigned number = 0;
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), number, 16);
    if (bad != std::errc() || end != text.data() + text.size() || number > 0xFF)
        return std::nullopt;
    constexpr char DIGITS[] = "0123456789ABCDEF";
    return std::string{DIGITS[number / 16], DIGITS[number % 16]};
}

std::optional<double> scale_of(std::string_view text) {
    double scale = 0;
    const auto [end, bad] = std::from_chars(text.data(), text.data() + text.size(), scale);
    if (bad != std::errc() || end != text.data() + text.size() ||
        !(scale >= LEAST_SCALE && scale <= MOST_SCALE))
        return std::nullopt;
    return scale;
}

void take_option(chart_request& request, const std::string& option, const std::string& value) {
    if (option == "-o") {
        request.picture = value;
    } else if (option == "--pid") {
        if (const auto pid = pid_of(value))
            request.pids.push_back(*pid);
        else
            request.error = "--pid is two hex digits, such as 0C";
    } else if (const auto scale = scale_of(value)) {
        request.scale = *scale;
    } else {
        request.error = "--scale is a number from 0.1 to 8";
    }
}

chart_request read_chart_request(std::span<const std::string> arguments) {
    chart_request request;
    for (std::size_t i = 0; i < arguments.size() && request.error.empty(); ++i) {
        const std::string& argument = arguments[i];
        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : argument.npos;
        const std::string option = argument.substr(0, equals);
        const bool takes_value = option == "-o" || option == "--pid" || option == "--scale";
        if (argument == "--dial")
            request.dial = true;
        else if (takes_value && equals != argument.npos)
            take_option(request, option, argument.substr(equals + 1));
        else if (takes_value && i + 1 == arguments.size())
            request.error = argument + " needs a value";
        else if (takes_value)
            take_option(request, option, arguments[++i]);
        else if (argument.starts_with("-"))
            request.error = "unknown option " + argument;
        else if (request.log.empty())
            request.log = argument;
        else
            request.error = "chart takes one log";
    }
    if (!request.error.empty())
        return request;
    if (request.log.empty())
        request.error = "chart needs a log file";
    else if (request.pids.empty() || request.pids.size() > MOST_PIDS)
        request.error = "chart needs one --pid or two";
    else if (request.dial && request.pids.size() > 1)
        request.error = "a dial shows one --pid";
    else if (request.picture.empty())
        request.error = "chart needs -o FILE.png";
    return request;
}

// The log's columns that hold the asked parameters, in the order asked.
std::vector<int> columns_of(const run_log& log, const chart_request& request, std::string& error) {
    std::vector<int> columns;
    for (const std::string& pid : request.pids) {
        const auto found = std::find(log.pids.begin(), log.pids.end(), pid);
        if (found == log.pids.end())
            error = request.log + ": no replies for parameter " + pid;
        columns.push_back(static_cast<int>(found - log.pids.begin()));
    }
    return columns;
}

QImage draw_chart(const chart_request& request, const run_log& log, const std::vector<int>& columns,
                  const mac_toolies& toolies, std::ostream& out) {
    drawChartyItem chart(toolies.doors());
    chart.initWitdim(CHART_SIZE, "main");
    chart.setThumbnail(false);
    chart.set_pixel_scale(request.scale);
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
        out << log.pids[static_cast<std::size_t>(column)] << ' ' << label.name << ": "
            << fixed_decimals(drawChartyItem::lower_limit(label), 2) << " to "
            << fixed_decimals(drawChartyItem::upper_limit(label), 2) << ' ' << label.units << '\n';
    }
    if (log.from)
        out << "Time: " << fixed_decimals(static_cast<double>(*log.from) / 1000, 3) << " to "
            << fixed_decimals(static_cast<double>(*log.to) / 1000, 3) << " s\n";
    return chart.image();
}

QImage draw_dial(const chart_request& request, const run_log& log, int column,
                 const mac_toolies& toolies, const bundle& resources, std::ostream& out) {
    const auto place = static_cast<std::size_t>(column);
    myGauge dial(resources, toolies);
    dial.set_pixel_scale(request.scale);
    dial.initGauge(log.pids[place]);
    const double last = log.last_numbers[place];
    if (std::isnan(last))
        dial.draw_without_needle(face::awaiting);
    else
        dial.draw_cur_needle_value(last, std::isnan(log.last_values[place].value) ? needle::greyed
                                                                                  : needle::lit);
    out << log.pids[place] << ' ' << parameter_name(toolies, log.pids[place]) << ": "
        << log.last_values[place].text << '\n';
    return dial.image();
}

} // namespace

int run_chart(std::span<const std::string> arguments, const mac_toolies& toolies,
              const bundle& resources, std::ostream& out, std::ostream& err) {
    chart_request request = read_chart_request(arguments);
    if (!request.error.empty()) {
        err << "kestrom: " << request.error << "\nTry 'kestrom chart --help'.\n";
        return USAGE_STATUS;
    }
    request.log = path_of_log(request.log, toolies);
    std::string error;
    const std::optional<run_log> log = read_run_log(request.log, toolies, error);
    std::vector<int> columns;
    if (log)
        columns = columns_of(*log, request, error);
    if (!error.empty()) {
        err << "kestrom: " << error << '\n';
        return FAILED_STATUS;
    }
    if (!request.dial && !log->times_complaint.empty())
        err << "kestrom: " << log->times_complaint << '\n';
    const QImage picture = request.dial
                               ? draw_dial(request, *log, columns[0], toolies, resources, out)
                               : draw_chart(request, *log, columns, toolies, out);
    if (!picture.save(qstring(request.picture), "PNG")) {
        err << "kestrom: " << request.picture << ": cannot be written\n";
        return FAILED_STATUS;
    }
    return 0;
}

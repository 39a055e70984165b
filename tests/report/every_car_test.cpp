// Every section of the report of every virtual car, on its genuine bus with its genuine times,
// against the car's own file.
#include "car_truth.h"
#include "report_fixture.h"
#include "sheet.h"
#include "test_paths.h"

#include <QFile>

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <iomanip>
#include <iostream>
#include <sstream>

namespace {

// What a section of the report says of a unit, and what the car's file says, as text.
struct section_row {
    const char* name;
    std::function<std::string(const unit_report&)> told;
    std::function<std::string(const car&, const control_unit&)> truth;
};

std::string state(const finding& found) {
    return found.reported() ? std::string()
                            : std::string(outcome_name(found.result)) + " " + found.why;
}

std::string codes(const unit_report& unit, std::size_t kind) {
    const finding& found = unit.of(CODE_KINDS[kind]);
    std::string text = state(found);
    for (const reported_code& one : unit.codes)
        if (one.kinds[kind])
            text += one.code + " ";
    return text;
}
std::string truth(const std::vector<std::string>& codes) {
    std::string text;
    for (const std::string& one : codes)
        text += one + " ";
    return text;
}
std::string truth(const car& the_car, const control_unit& unit, int service,
                  const std::vector<std::string>& codes) {
    if (unit.answers.contains(request_of("", static_cast<unsigned>(service))))
        return "refused 7F " + request_of("", static_cast<unsigned>(service)) + " 11";
    if (silent(unit, service) || (service == 0x0A && !is_can(the_car)))
        return "not_told no_answer";
    return truth(codes);
}

// Before CAN: test, component with its kind of limit, value, limit.
std::string old_tests(const control_unit& unit) {
    std::vector<std::string> rows;
    for (const auto& [request, messages] : unit.answers)
        for (const byte_string& one : messages) {
            if (!request.starts_with("06") || request == "0600" || request == "0620")
                continue;
            std::string row;
            for (std::size_t i = 1; i < one.size(); ++i)
                row = request_of(row, one[i]);
            const int value = one[3] << 8 | one[4], limit = one[5] << 8 | one[6];
            rows.push_back(row + ((one[2] & 0x80 ? value >= limit : value <= limit) ? " " : "!"));
        }
    std::ranges::sort(rows);
    return truth(rows);
}

const section_row SECTIONS[] = {
    {"lamp",
     [](const unit_report& unit) {
         return std::string(unit.lamp_on ? "on " : "off ") + std::to_string(unit.announced_codes);
     },
     [](const car&, const control_unit& unit) {
         return std::string(unit.lamp ? "on " : "off ") + std::to_string(announced_codes(unit));
     }},
    {"stored", [](const unit_report& unit) { return codes(unit, 0); },
     [](const car& one, const control_unit& unit) { return truth(one, unit, 3, unit.stored); }},
    {"pending", [](const unit_report& unit) { return codes(unit, 1); },
     [](const car& one, const control_unit& unit) { return truth(one, unit, 7, unit.pending); }},
    {"permanent", [](const unit_report& unit) { return codes(unit, 2); },
     [](const car& one, const control_unit& unit) {
         return truth(one, unit, 0x0A, unit.permanent);
     }},
    {"frame",
     [](const unit_report& unit) {
         std::string text = state(unit.of(part::frame)) + unit.frame_code;
         for (const reported_value& one : unit.frame_values)
             text += " " + one.found.raw.substr(0, 4) + one.found.raw.substr(6);
         return text;
     },
     [](const car&, const control_unit& unit) {
         if (silent(unit, 2))
             return std::string("not_told no_answer");
         if (!unit.frozen)
             return std::string();
         std::string text = unit.frozen->code;
         for (const auto& [pid, bytes] : unit.frozen->values) {
             text += " " + request_of("42", static_cast<unsigned>(pid));
             for (const std::uint8_t byte : bytes)
                 text += request_of("", byte);
         }
         return text;
     }},
    {"readiness",
     [](const unit_report& unit) {
         std::string text = unit.compression ? "compression" : "spark";
         for (const reported_monitor& one : unit.monitors)
             if (one.supported)
                 text += one.complete ? " OK" : " X";
         return text;
     },
     [](const car& one, const control_unit& unit) {
         std::string text = one.engine.fuel == fuel_kind::diesel ? "compression" : "spark";
         for (const std::string& monitor : monitor_states(unit.readiness))
             if (monitor != "N/A")
                 text += " " + monitor;
         return text;
     }},
    {"this drive",
     [](const unit_report& unit) { return state(unit.of(part::this_drive)).substr(0, 8); },
     [](const car&, const control_unit& unit) {
         return std::string(unit.fixed.contains(0x41) ? "" : "not_told");
     }},
    {"vin",
     [](const unit_report& unit) { return state(unit.of(part::vin)).substr(0, 8) + unit.vin; },
     [](const car& one, const control_unit& unit) {
         if (unit.answers.contains("0902"))
             return std::string(17, '.');
         return &unit == &one.units.front() && !one.vin.empty() && !silent(unit, 9)
                    ? one.vin
                    : std::string("not_told");
     }},
    {"calibrations",
     [](const unit_report& unit) {
         std::string text;
         for (const calibration& one : unit.calibrations)
             text += one.id + " " + one.verification_number + " ";
         return text;
     },
     [](const car&, const control_unit& unit) {
         std::string text;
         for (std::size_t i = 0; i < unit.calibrations.size() && !silent(unit, 9); ++i)
             text += unit.calibrations[i] + " " +
                     (i < unit.verification_numbers.size() ? unit.verification_numbers[i] : "") +
                     " ";
         return text;
     }},
    {"name",
     [](const unit_report& unit) { return unit.of(part::unit_name).reported() ? unit.name : ""; },
     [](const car& one, const control_unit& unit) {
         return unit.short_name.empty() ? is_can(one) ? unit.name : ""
                                        : unit.short_name + " - " + unit.name;
     }},
    {"counters",
     [](const unit_report& unit) {
         std::string text;
         for (const reported_counter& one : unit.counters)
             text += std::to_string(one.done) + " " +
                     (one.conditions ? std::to_string(*one.conditions) + " " : "");
         return text;
     },
     [](const car&, const control_unit& unit) {
         std::string text;
         for (const int one : unit.counters)
             text += std::to_string(one) + " ";
         return text;
     }},
    {"tests",
     [](const unit_report& unit) {
         std::vector<std::string> rows;
         for (const reported_test& one : unit.tests)
             rows.push_back(one.raw + (one.result == verdict::failed ? "!" : " "));
         std::ranges::sort(rows);
         return truth(rows);
     },
     [](const car& one, const control_unit& unit) {
         std::vector<std::string> rows;
         for (const test_result& test : unit.tests) {
             std::string row =
                 request_of(request_of(request_of("", test.monitor), test.test), test.unit);
             for (const std::uint16_t word : {test.value, test.lowest, test.highest})
                 row = request_of(request_of(row, word >> 8), word & 0xFFu);
             const auto number = [&](std::uint16_t word) {
                 return test.unit < 0x80 ? int(word) : int(std::int16_t(word));
             };
             const bool passed = number(test.value) >= number(test.lowest) &&
                                 number(test.value) <= number(test.highest);
             rows.push_back(row + (passed ? " " : "!"));
         }
         std::ranges::sort(rows);
         return is_can(one) ? truth(rows) : old_tests(unit);
     }},
};

void expect_truth(car_on_the_bench& bench) {
    const car_report& report = bench.read();
    EXPECT_EQ(report.units.size(), bench.the_car.units.size());
    EXPECT_EQ(report.transcript.end, reading_end::complete);
    for (const section_row& section : SECTIONS) {
        for (const unit_report& unit : report.units) {
            const auto real =
                std::ranges::find_if(bench.the_car.units, [&](const control_unit& one) {
                    return unit.address ==
                           request_of(one.address > 0xFF ? "7" : "", one.address & 0xFF);
                });
            ASSERT_NE(real, bench.the_car.units.end());
            EXPECT_EQ(section.told(unit), section.truth(bench.the_car, *real))
                << section.name << " of " << unit.address;
        }
    }
    std::cout << std::setw(12) << bench.the_car.name << std::setw(32) << report.protocol << ", "
              << report.transcript.pieces.size() << " questions, "
              << report.transcript.milliseconds / 1000.0 << " s\n";
}

class every_car : public testing::TestWithParam<std::string> {};

TEST_P(every_car, is_told_as_its_file_says_in_every_section) {
    car_on_the_bench bench(GetParam());
    expect_truth(bench);
}

TEST(late_unit, that_the_adapter_cuts_off_is_waited_for) {
    car slow = load_car("hybrid2021");
    slow.units.back().delay_ms = 60;
    car_on_the_bench bench(std::move(slow));
    expect_truth(bench);
}

TEST(example, of_the_documentation_is_what_a_car_tells) {
    car_on_the_bench bench("diesel2019");
    bench.read();
    conversation transcript = without_vin(bench.reader.transcript());
    transcript.program = "Kestrom"; // of any version
    QFile kept(QString::fromStdString(source_file("docs/report-example.txt")));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    const bundle english(":/kestrom", "en_US");
    EXPECT_EQ(kept.readAll().toStdString(),
              sheet_text(sheet_of(report_of(transcript, bench.toolies), english)));
}

INSTANTIATE_TEST_SUITE_P(cars, every_car, testing::ValuesIn(car_names()),
                         [](const auto& name) { return name.param; });

} // namespace

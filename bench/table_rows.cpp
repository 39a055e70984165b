#include "bundle.h"
#include "mac_toolies.h"
#include "ratio_table.h"
#include "rows.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <string>
#include <vector>

void add_table_rows(ratio_table& table) {
    const auto resources = std::make_shared<bundle>();
    const auto toolies =
        std::make_shared<mac_toolies>(toolkit_doors{resources.get(), nullptr, nullptr, nullptr});
    table.add_ratio("loading P0_Codes",
                    {[=] {
                         benchmark::DoNotOptimize(
                             toolies->get_dictionary_from_resource("P0_Codes", "txt", " "));
                     },
                     1},
                    "reading the file and splitting its lines",
                    {[=] {
                         const std::string text = *resources->resource_text("P0_Codes", "txt");
                         std::vector<std::string_view> lines;
                         for (std::size_t start = 0; start < text.size();) {
                             const std::size_t end = std::min(text.find('\n', start), text.size());
                             lines.push_back(std::string_view(text).substr(start, end - start));
                             start = end + 1;
                         }
                         benchmark::DoNotOptimize(lines.data());
                     },
                     1},
                    reach::at_most, 3);

    const auto codes = std::make_shared<text_dictionary>(
        *toolies->get_dictionary_from_resource("P0_Codes", "txt", " "));
    std::string few_lines;
    for (auto entry = codes->begin(); entry != codes->begin() + 10; ++entry)
        few_lines += std::string(entry->first) + std::string(entry->second) + "\n";
    const auto few = std::make_shared<text_dictionary>(few_lines, " ");
    const auto look_up_all = [](const text_dictionary& dictionary) {
        return [&dictionary, at = dictionary.begin()]() mutable {
            if (at == dictionary.end())
                at = dictionary.begin();
            benchmark::DoNotOptimize(dictionary.find(at++->first));
        };
    };
    // A scan would cost some three hundred times as much.
    constexpr std::size_t LOOK_UPS = 10'000;
    const auto many_times = [](auto once) {
        return [once]() mutable {
            for (std::size_t i = 0; i < LOOK_UPS; ++i)
                once();
        };
    };
    table.add_ratio(
        "looking up one of all codes",
        {[work = many_times(look_up_all(*codes)), codes]() mutable { work(); }, LOOK_UPS},
        "one of ten codes",
        {[work = many_times(look_up_all(*few)), few]() mutable { work(); }, LOOK_UPS},
        reach::at_most, 10);
}

#include "code_search.h"
#include "command_functions.h"
#include "commands.h"
#include "mac_toolies.h"
#include "report_printer.h"

#include <nlohmann/json.hpp>
#include <ostream>

namespace {

constexpr int FAILED_STATUS = 1;

std::string wanted_of(const cli_request& asked) {
    std::string wanted;
    for (const std::string& argument : asked.arguments)
        wanted += (wanted.empty() ? "" : " ") + argument;
    return wanted;
}

} // namespace

void check_lookup(const cli_request& asked) {
    if (wanted_of(asked).find_first_not_of(' ') == std::string::npos)
        throw usage_error("lookup needs a code or words, such as P0301 or \"oil pressure\"");
}

int run_lookup(const desk& work) {
    const std::vector<found_code> found = search_codes(work.toolies, wanted_of(work.asked));
    ordered_json codes = ordered_json::array();
    for (const auto& [code, description] : found) {
        if (work.asked.json)
            codes.push_back({{"code", code}, {"description", description}});
        else
            work.out << code << "  " << description << '\n';
    }
    if (work.asked.json)
        work.out << json_lines({{"codes", codes}});
    if (!found.empty())
        return 0;
    work.err << "kestrom: lookup found nothing\n";
    return FAILED_STATUS;
}

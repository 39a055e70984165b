// The toolkit's operations by the rows of data/*.rows: a line here for each heading there.
#include "code_search.h"
#include "decode_fixture.h"
#include "fixed_decimals.h"
#include "globalVars.h"
#include "log_export.h"
#include "parameters.h"
#include "rows.h"
#include "sample_reply.h"
#include "test_paths.h"
#include "text.h"
#include "trouble_codes.h"

#include <charconv>
#include <cmath>
#include <sstream>

namespace {

using toolkit = mac_toolies;
using fields = std::vector<std::string>;
using F = const fields&;

template <class container>
std::string joined(const container& parts) {
    std::string text;
    for (const auto& part : parts)
        text.append(&part == &*std::begin(parts) ? "" : ",").append(part);
    return text;
}
int whole(const std::string& text) {
    return std::atoi(text.c_str());
}
std::string text_of(double value) {
    char room[32];
    return std::isnan(value) ? "nan" : std::string(room, std::to_chars(room, room + 32, value).ptr);
}
std::string codes_in(std::string_view service, std::string_view reply, bus_form form) {
    return joined(read_codes(service, reply, {form, bus_source::headers}).codes);
}

class operations_test : public decode_test, public testing::WithParamInterface<std::string> {
  public:
    ~operations_test() override { reset_global_vars(); }

    const mac_toolies& in(bool metric) {
        use_metric(metric);
        return *toolies_now;
    }
    // A toolkit that has not read its tables yet.
    void begin_anew() {
        toolies_now.emplace(toolkit_doors{&resources, &settings, &boxes, &notifications});
        reset_global_vars();
        g_cur_barom_press = 101;
    }
    void put_table(F f) { write_table(f[0], f[1]); }

    // A run log with the times of its rounds, as a table beside it.
    std::string exported(const std::string& log, const std::string& times, bool to_the_letter) {
        use_metric(true);
        std::filesystem::create_directories(logs.log_folder());
        const std::string path = logs.log_folder() + "/run.gol",
                          table = logs.log_folder() + "/run.csv";
        for (const std::string& old : {table, path + ".times"})
            std::filesystem::remove(old);
        std::ofstream(path, std::ios::binary) << log;
        if (times != "-")
            std::ofstream(path + ".times") << times;
        const bool done = to_the_letter && logs.export_to_CSV("run.gol", false);
        EXPECT_EQ(done, to_the_letter);
        if (!done)
            outcome = export_log(logs, path, table, {.with_time = !times.empty()});
        std::ostringstream text;
        text << std::ifstream(table, std::ios::binary).rdbuf();
        return text.str();
    }

    std::optional<mac_toolies> toolies_now;
    bundle shipped{":/kestrom", "en"};
    mac_toolies logs{{&shipped, &settings, &boxes, &notifications, root() + "/data"}};
    export_outcome outcome;
};

std::string masks_after(const std::string& reply, int group) {
    g_Supported_obd_mask_0 = std::string_view("OLD");
    for (auto* mask : {&g_Supported_obd_mask_1, &g_Supported_obd_mask_2})
        mask->clear();
    toolkit::handle_00_replies(reply, group);
    return joined(fields{g_Supported_obd_mask_0.str(), g_Supported_obd_mask_1.str(),
                         g_Supported_obd_mask_2.str(), g_Supported_obd_mask_3.str()});
}
std::string states_of(const mac_toolies& toolies, const std::string& flags) {
    std::vector<readiness_flag> rows{{"stale", "stale", "stale"}};
    toolies.handle_readiness_codes(flags, rows);
    std::string states;
    for (const readiness_flag& row : rows)
        states += (states.empty() ? "" : " ") + row.state;
    return states;
}
std::string entries_of(operations_test& t, F f) {
    t.put_table({"codes", f[0]});
    std::string told;
    const auto table = t.in(false).get_dictionary_from_resource("codes", "txt", f[1]).value();
    for (const auto& [key, text] : table)
        told.append(told.empty() ? "" : ";").append(key).append("=").append(text);
    return told;
}
std::string codes_found(const mac_toolies& toolies, const std::string& text) {
    fields codes;
    for (const found_code& found : search_codes(toolies, text))
        codes.push_back(found.code + " " + found.description);
    return joined(codes);
}
std::string lines_of(const mac_toolies& toolies, const std::string& table) {
    const auto lines = toolies.get_array_from_resource(table, "txt");
    return lines ? joined(*lines) : "-";
}
std::string bytes_of(const std::string& digits) {
    std::string told;
    for (const unsigned byte : toolkit::fromHexString(digits).value_or(std::vector<std::uint8_t>()))
        told += toolkit::convertByte2HexStr(byte);
    return told.empty() ? "-" : told;
}
// Of parameters that have to be shown alike: the first that is not.
std::string odd_one_of(operations_test& t, const std::string& pids) {
    for (const bool metric : {false, true})
        for (unsigned raw = 0; raw < 0x10000; raw += 85) {
            const std::string data = toolkit::convertByte2HexStr(raw >> 8) +
                                     toolkit::convertByte2HexStr(raw & 0xFF) + "80FF";
            const std::string first =
                t.in(metric).translateResponse("41" + pids.substr(0, 2) + data);
            for (const std::string_view pid : split(pids, ","))
                if (const translated one =
                        t.in(metric).translate_once("41" + std::string(pid) + data);
                    one.text != first || one.value != leading_number(first))
                    return std::string(pid);
        }
    return pids;
}
std::string parameter_told(const mac_toolies& decoder, F f) {
    const auto range = parameter_range(decoder, f[0]);
    return parameter_value(decoder, f[1]).text + " " + parameter_units(decoder, f[0]) + " " +
           text_of(range.low) + ".." + text_of(range.high);
}
std::string unit_and_range(const mac_toolies& decoder, const std::string& pid) {
    return decoder.get_units(pid) + "," + text_of(decoder.get_PID_min_max(pid, false)) + ".." +
           text_of(decoder.get_PID_min_max(pid, true));
}

using T = operations_test&;
const row_operations<T> OPERATIONS{
    {"table", [](F f, T t) { return t.put_table(f), f.back(); }},
    {"pull_ECU", [](F f, T) { return toolkit::pull_ECU(f[0]); }},
    {"pull_PID_msg", [](F f, T) { return toolkit::pull_PID_msg(f[0], f[1], f[2]).value_or("-"); }},
    {"Pull_ECU_msg", [](F f, T) { return joined(*toolkit::Pull_ECU_msg(f[0])); }},
    {"grab_CAN_msg", [](F f, T) { return toolkit::grab_CAN_msg(f[0]); }},
    {"handle_00_replies", [](F f, T) { return masks_after(f[0], whole(f[1])); }},
    {"is_this_code_available",
     [](F f, T) {
         return toolkit::is_this_code_available(f[0], f[1], whole(f[2])) ? std::string("1") : "0";
     }},
    {"clean_a_reply", [](F f, T) { return toolkit::clean_a_reply(f[0]); }},
    {"fix_3dots", [](F f, T) { return toolkit::fix_3dots(f[0]); }},
    {"check_bad_reply", [](F f, T) { return toolkit::check_bad_reply(f[0], f[1]); }},
    {"convertStr2Byte", [](F f, T) { return std::to_string(toolkit::convertStr2Byte(f[0])); }},
    {"fromHexString", [](F f, T) { return bytes_of(f[0]); }},
    {"convertByte2HexStr", [](F f, T) { return toolkit::convertByte2HexStr(whole(f[0])); }},
    {"count_items_in_Str",
     [](F f, T) { return std::to_string(toolkit::count_items_in_Str(f[0], f[1])); }},
    {"Pull_line_into_array",
     [](F f, T) { return joined(toolkit::Pull_line_into_array(f[0], f[1])); }},
    {"myReplace", [](F f, T) { return toolkit::myReplace(f[0], f[1], f[2]); }},
    {"padRight", [](F f, T) { return toolkit::padRight(f[0], whole(f[1]), f[2]); }},
    {"padLeft", [](F f, T) { return toolkit::padLeft(f[0], whole(f[1]), f[2]); }},
    {"padString",
     [](F f, T) { return toolkit::padString(f[0], f[1][0], whole(f[2]), f[3] == "1"); }},
    {"formatStringWithDouble",
     [](F f, T) { return toolkit::formatStringWithDouble(f[0], whole(f[1])); }},
    {"replace_all", [](F f, T) { return replace_all(f[0], f[1], f[2]); }},
    {"slice", [](F f, T) { return std::string(slice(f[0], whole(f[1]), whole(f[2]))); }},
    {"trimmed", [](F f, T) { return std::string(trimmed(f[0])); }},
    {"split", [](F f, T) { return joined(split(f[0], f[1])); }},
    {"pull_DTC_code", [](F f, T) { return toolkit::pull_DTC_code(f[0]); }},
    {"read_codes", [](F f, T) { return codes_in("03", f[0], bus_form::older); }},
    {"read_codes_of", [](F f, T) { return codes_in(f[0], f[1], bus_form::can); }},
    {"work_reply_to_error_codes_pid",
     [](F f, T) {
         g_cur_protocol = std::string_view(f[0]);
         return joined(toolkit::work_reply_to_error_codes_pid("03", f[1]));
     }},
    {"work_out_vin", [](F f, T) { return toolkit::work_out_vin(f[0]); }},
    {"CAN_scale_and_units", [](F f, T) { return toolkit::CAN_scale_and_units(f[0], f[1], true); }},
    {"test_description",
     [](F f, T t) {
         return t.in(false).grab_CAN_mode6_OBDMID_TESTID_description(f[0], f[1] == "1");
     }},
    {"standard_test_value", [](F f, T) { return standard_test_value(f[0], f[1]); }},
    {"standard_value", [](F f, T) { return text_of(standard_value(f[0], true).value); }},
    {"standard_metric", [](F f, T) { return standard_value(f[0], true).text; }},
    {"standard_imperial", [](F f, T) { return standard_value(f[0], false).text; }},
    {"parameter", [](F f, T t) { return parameter_told(t.in(true), f); }},
    {"whole_answer", [](F f, T) { return std::string(whole_answer(f[0])); }},
    {"answer_in", [](F f, T) { return std::string(answer_in(f[0])); }},
    {"imperial", [](F f, T t) { return t.in(false).translateResponse(f[0]); }},
    {"metric", [](F f, T t) { return t.in(true).translateResponse(f[0]); }},
    {"value", [](F f, T t) { return text_of(t.in(false).get_OBDVal(f[0])); }},
    {"leading_number", [](F f, T) { return text_of(leading_number(f[0])); }},
    {"family", [](F f, T t) { return odd_one_of(t, f[0]); }},
    {"imperial_range", [](F f, T t) { return unit_and_range(t.in(false), f[0]); }},
    {"metric_range", [](F f, T t) { return unit_and_range(t.in(true), f[0]); }},
    {"encode_imperial", [](F f, T t) { return t.in(false).encode_to_OBD(std::stod(f[0]), f[1]); }},
    {"encode_metric", [](F f, T t) { return t.in(true).encode_to_OBD(std::stod(f[0]), f[1]); }},
    {"lines", [](F f, T t) { return lines_of(t.in(false), f[0]); }},
    {"dictionary", [](F f, T t) { return entries_of(t, f); }},
    {"search_codes", [](F f, T t) { return codes_found(t.in(false), f[0]); }},
    {"get_pid_name", [](F f, T t) { return t.in(false).get_pid_name(f[0], f[1] == "1"); }},
    {"exported_to_the_letter", [](F f, T t) { return t.exported(f[0], "", true); }},
    {"exported", [](F f, T t) { return t.exported(f[0], "", false); }},
    {"exported_with_time", [](F f, T t) { return t.exported(f[0], f[1], false); }},
    {"note",
     [](F, T t) {
         return t.outcome.note.substr(
             std::min(t.outcome.note.size(), t.logs.log_folder().size() + 1));
     }},
    {"name_of_csv", [](F f, T) { return log_export::output_name(f[0], false); }},
    {"name_of_text", [](F f, T) { return log_export::output_name(f[0], true); }},
    {"readiness", [](F f, T t) { return states_of(t.in(false), f[0]); }},
};

TEST_P(operations_test, give_what_the_rows_say) {
    std::string before;
    for (const table_row& row : read_rows(test_data(GetParam() + ".rows"))) {
        if (row.heading != before)
            begin_anew();
        before = row.heading;
        expect_row<T>(OPERATIONS, row, *this);
    }
}

INSTANTIATE_TEST_SUITE_P(all, operations_test, testing::ValuesIn(files_in(test_data(""), ".rows")),
                         [](const auto& name) { return name.param; });

} // namespace

#include "log_export.h"
#include "mac_toolies.h"
#include "system_log.h"

#include <filesystem>

bool mac_toolies::export_to_CSV(std::string_view log_file_name, bool as_txt) const {
    const std::string folder = log_folder() + "/";
    const std::string log = folder + std::string(log_file_name);
    const std::string output = folder + log_export::output_name(log_file_name, as_txt);
    const export_outcome outcome = export_log(*this, log, output, {.to_the_letter = true});
    switch (outcome.result) {
    case export_result::output_exists:
        myMsgBox(outcome.error);
        return false;
    case export_result::unwritable: {
        // The log still counts as read.
        qCWarning(log_toolkit, "export-to_CSV::%s", outcome.error.c_str());
        std::error_code unknown;
        const auto size = std::filesystem::file_size(log, unknown);
        return !unknown && size > 0;
    }
    case export_result::exported:
        return true;
    default: // a log without lines gives an export without lines
        log_file().create(output, log_file::existing::refuse);
        return false;
    }
}

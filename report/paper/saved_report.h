// The report as the bytes of a file, and saved to disk.
#pragma once

#include "paper.h"

#include <QByteArray>

#include <optional>
#include <string>

enum class rendering { text, html, pdf, json };

// From the extension of a file name; nothing for an unknown one.
std::optional<rendering> rendering_named(const std::string& path);

QByteArray rendered(const car_report& report, const report_sheet& sheet, rendering as,
                    paper_size paper);

// Returns the reason on failure; an existing file then stays as it was.
std::optional<std::string> write_whole(const std::string& path, const QByteArray& bytes);
// Nothing, with the reason, if the file cannot be read.
std::optional<std::string> read_whole(const std::string& path, std::string& why);

// "report_WKE4D19E060******_2026-11-22", without extension, in characters that any file system
// accepts.
std::string usual_name(const car_report& report);

// The current time, "2026-11-22T18:04:07+01:00"; the program's name and version.
conversation new_conversation();

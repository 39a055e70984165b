// The report as the bytes of a file, and onto the disk.
#pragma once

#include "paper.h"

#include <QByteArray>

#include <optional>
#include <string>

enum class rendering { text, html, pdf, json };

// By the end of a file's name; nothing for another one.
std::optional<rendering> rendering_named(const std::string& path);

QByteArray rendered(const car_report& report, const report_sheet& sheet, rendering as,
                    paper_size paper);

// The reason when it failed; what was there before then stays.
std::optional<std::string> write_whole(const std::string& path, const QByteArray& bytes);
// Nothing, with the reason, for a file that cannot be read.
std::optional<std::string> read_whole(const std::string& path, std::string& why);

// "report_WKE4D19E060******_2026-11-22", without an ending, of characters that any disk takes.
std::string usual_name(const car_report& report);

// "2026-11-22T18:04:07+01:00" of now, and the program's name with its version.
conversation new_conversation();

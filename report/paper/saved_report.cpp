#include "saved_report.h"

#include "report_json.h"

#include <QDateTime>
#include <QFile>
#include <QSaveFile>
#include <QTimeZone>

#include <algorithm>
#include <cctype>

namespace {

struct rendering_row {
    rendering as;
    const char* ending;
};
constexpr rendering_row ROWS[] = {{rendering::text, ".txt"},
                                  {rendering::html, ".html"},
                                  {rendering::pdf, ".pdf"},
                                  {rendering::json, ".json"}};

constexpr qint64 LARGEST_FILE = 16 * 1024 * 1024;

} // namespace

std::optional<rendering> rendering_named(const std::string& path) {
    for (const rendering_row& row : ROWS)
        if (QString::fromStdString(path).endsWith(QLatin1String(row.ending), Qt::CaseInsensitive))
            return row.as;
    return std::nullopt;
}

QByteArray rendered(const car_report& report, const report_sheet& sheet, rendering as,
                    paper_size paper) {
    switch (as) {
    case rendering::text:
        return QByteArray::fromStdString(sheet_text(sheet));
    case rendering::html:
        return QByteArray::fromStdString(sheet_html(sheet));
    case rendering::pdf:
        return sheet_pdf(sheet, paper);
    case rendering::json:
        return QByteArray::fromStdString(report_json(report));
    }
    return {};
}

std::optional<std::string> write_whole(const std::string& path, const QByteArray& bytes) {
    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString().toStdString();
    // On a full disk a large write is cut off without an error.
    const bool whole =
        file.write(bytes) == bytes.size() && file.flush() && file.size() == bytes.size();
    if (whole && file.commit())
        return std::nullopt;
    return file.error() == QFileDevice::NoError ? "the disk is full"
                                                : file.errorString().toStdString();
}

std::optional<std::string> read_whole(const std::string& path, std::string& why) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly)) {
        why = file.errorString().toStdString();
        return std::nullopt;
    }
    return file.read(LARGEST_FILE).toStdString();
}

std::string usual_name(const car_report& report) {
    std::string name = "report_" + (report.vin.empty() ? "" : report.vin + "_") +
                       report.transcript.read_at.substr(0, 10);
    std::ranges::replace_if(
        name, [](unsigned char c) { return !std::isalnum(c) && c != '-' && c != '_'; }, 'x');
    return name;
}

conversation new_conversation() {
    conversation transcript;
    const QDateTime now = QDateTime::currentDateTime();
    transcript.read_at =
        now.toOffsetFromUtc(now.offsetFromUtc()).toString(Qt::ISODate).toStdString();
    transcript.program = "Kestrom " KESTROM_VERSION;
    return transcript;
}

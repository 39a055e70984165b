#include "conversation_recorder.h"

#include <QDateTime>

#include <nlohmann/json.hpp>

using nlohmann::ordered_json;

namespace {

constexpr int FORMAT_VERSION = 1;

// Characters that represent one byte each.
std::string letters_of(std::string_view bytes) {
    return QString::fromLatin1(bytes.data(), static_cast<qsizetype>(bytes.size())).toStdString();
}

// In ASCII.
std::string line_of(const ordered_json& entry) {
    return entry.dump(-1, ' ', true) + "\n";
}

} // namespace

std::optional<std::string> conversation_recorder::start(const std::string& path,
                                                        const std::string& version,
                                                        std::string_view adapter) {
    if (auto why = file_.create(path, log_file::existing::refuse))
        return why;
    started_ = loop_.now();
    const std::string now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
    return file_.append_line(line_of({{"kestrom_recording", FORMAT_VERSION},
                                      {"version", version},
                                      {"date", now},
                                      {"adapter", adapter}}));
}

void conversation_recorder::note(std::string_view key, std::string_view bytes) {
    ordered_json members;
    members[std::string(key)] = letters_of(bytes);
    append(members);
}

void conversation_recorder::event(std::string_view what, std::string_view key,
                                  std::string_view text) {
    ordered_json members{{"event", what}};
    if (!key.empty())
        members[std::string(key)] = letters_of(text);
    append(members);
}

void conversation_recorder::append(const ordered_json& members) {
    ordered_json entry{{"ms", (loop_.now() - started_).count()}};
    entry.update(members);
    const auto why = file_.append_line(line_of(entry));
    if (why && stopped)
        stopped(*why);
}

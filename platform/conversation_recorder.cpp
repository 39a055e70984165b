#include "conversation_recorder.h"

#include <QDateTime>

namespace {

constexpr int FORMAT_VERSION = 1;

// A JSON string of characters that each stand for one byte.
std::string quoted(std::string_view bytes) {
    constexpr char DIGITS[] = "0123456789abcdef";
    std::string text = "\"";
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\')
            (text += '\\') += c;
        else if (c == '\r')
            text += "\\r";
        else if (c == '\n')
            text += "\\n";
        else if (byte < 0x20 || byte > 0x7E)
            ((text += "\\u00") += DIGITS[byte / 16]) += DIGITS[byte % 16];
        else
            text += c;
    }
    return text += '"';
}

std::string member(std::string_view key, std::string_view text) {
    return quoted(key) + ":" + quoted(text);
}

} // namespace

std::optional<std::string> conversation_recorder::start(const std::string& path,
                                                        const std::string& version,
                                                        std::string_view adapter) {
    if (auto why = file_.create(path, log_file::existing::refuse))
        return why;
    started_ = loop_.now();
    const std::string now = QDateTime::currentDateTimeUtc().toString(Qt::ISODate).toStdString();
    return file_.append_line("{\"kestrom_recording\":" + std::to_string(FORMAT_VERSION) + "," +
                             member("version", version) + "," + member("date", now) + "," +
                             member("adapter", adapter) + "}\n");
}

void conversation_recorder::note(std::string_view key, std::string_view bytes) {
    append(member(key, bytes));
}

void conversation_recorder::event(std::string_view what, std::string_view key,
                                  std::string_view text) {
    append(member("event", what) + (key.empty() ? "" : "," + member(key, text)));
}

void conversation_recorder::append(const std::string& members) {
    const auto why = file_.append_line(
        "{\"ms\":" + std::to_string((loop_.now() - started_).count()) + "," + members + "}\n");
    if (why && stopped)
        stopped(*why);
}

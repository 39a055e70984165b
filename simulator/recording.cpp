#include "recording.h"

#include "json_lines.h"
#include "request_reader.h"

#include <QFile>

#include <cmath>

namespace {

using std::chrono::milliseconds;

constexpr int KNOWN_FORMAT = 1;
constexpr double LATEST_MS = 1e12;

// The bytes that the characters up to U+00FF represent; nothing if there is a higher one.
std::optional<std::string> bytes_of(const std::string& text) {
    std::string bytes;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80)
            bytes += text[i];
        else if (lead <= 0xC3 && i + 1 < text.size())
            bytes += static_cast<char>((lead & 0x03) << 6 | (text[++i] & 0x3F));
        else
            return std::nullopt;
    }
    return bytes;
}

// Assembles the recording from its lines. Throws json_error.
class recording_builder {
  public:
    void take(const json_value& line) {
        if (line.type != json_value::kind::object)
            refuse("is no object");
        if (!header_read_)
            take_header(line);
        else
            take_entry(line);
    }
    recording finished() {
        if (!header_read_)
            refuse("is empty");
        if (made_.connections.empty())
            refuse("no connection to an adapter was made in it");
        return std::move(made_);
    }

  private:
    [[noreturn]] static void refuse(const std::string& why) { throw json_error(0, why); }

    void take_header(const json_value& line) {
        const json_value* format = line.find("kestrom_recording");
        if (!format || format->type != json_value::kind::number)
            refuse("this is no recording: the first line lacks \"kestrom_recording\"");
        if (format->number != KNOWN_FORMAT)
            refuse("was recorded in a form that this version does not know");
        header_read_ = true;
    }

    void take_entry(const json_value& line) {
        take_time(line);
        if (const json_value* event = line.find("event"); event && line.object.size() <= 3)
            take_event(text_of(*event));
        else if (line.object.size() != 2)
            refuse("needs \"ms\" and one of \"sent\", \"unsent\", \"received\" and \"event\"");
        else if (const json_value* sent = line.find("sent"))
            take_sent(text_of(*sent));
        else if (const json_value* received = line.find("received"))
            take_received(text_of(*received));
        else if (const json_value* unsent = line.find("unsent"))
            text_of(*unsent);
        else
            refuse("has neither \"sent\", \"unsent\", \"received\" nor \"event\"");
    }

    void take_time(const json_value& line) {
        const json_value* ms = line.find("ms");
        if (!ms || ms->type != json_value::kind::number || !(ms->number >= 0) ||
            ms->number > LATEST_MS || ms->number != std::floor(ms->number))
            refuse("\"ms\" is a whole number of milliseconds");
        const milliseconds at(static_cast<milliseconds::rep>(ms->number));
        if (at < now_)
            refuse("is earlier than the line before");
        now_ = at;
    }

    static std::string text_of(const json_value& value) {
        if (value.type != json_value::kind::text)
            refuse("a text is expected");
        auto bytes = bytes_of(value.text);
        if (!bytes)
            refuse("has a character beyond U+00FF");
        return *std::move(bytes);
    }

    void take_event(const std::string& what) {
        if (what == "open") {
            open_ = true;
            typed_.clear();
            made_.connections.push_back(made_.exchanges.size());
            made_.exchanges.push_back({std::nullopt, now_, {}, {}});
        } else if (what == "end" || what == "error" || what == "closed") {
            if (open_ && what != "closed")
                made_.exchanges.back().hung_up = now_ - made_.exchanges.back().asked;
            open_ = false;
        } else if (what != "connecting") {
            refuse("there is no event \"" + what + "\"");
        }
    }

    void take_sent(const std::string& bytes) {
        need_connection();
        for (const char c : bytes) {
            if (c != '\r') {
                typed_ += c;
                continue;
            }
            made_.exchanges.push_back({plain_command(typed_), now_, {}, {}});
            typed_.clear();
        }
    }

    void take_received(std::string bytes) {
        need_connection();
        recorded_exchange& last = made_.exchanges.back();
        last.pieces.push_back({now_ - last.asked, std::move(bytes)});
    }

    void need_connection() const {
        if (!open_)
            refuse("stands where no connection is open");
    }

    recording made_;
    bool header_read_ = false;
    bool open_ = false;
    milliseconds now_{0};
    std::string typed_;
};

} // namespace

recording read_recording(std::string_view text, const std::string& file) {
    recording_builder builder;
    int line = 0;
    try {
        while (!text.empty()) {
            const std::string_view one = text.substr(0, text.find('\n'));
            text.remove_prefix(std::min(one.size() + 1, text.size()));
            ++line;
            if (one.find_first_not_of(" \t\r") != std::string_view::npos)
                builder.take(parse_json(one));
        }
        line = 0;
        return builder.finished();
    } catch (const json_error& error) {
        throw recording_error(file, line, error.what());
    }
}

recording load_recording(const std::string& path) {
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::ReadOnly))
        throw recording_error(path, 0, file.errorString().toStdString());
    const QByteArray text = file.readAll();
    return read_recording(std::string_view(text.constData(), std::size_t(text.size())), path);
}

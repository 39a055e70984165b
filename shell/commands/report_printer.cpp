#include "report_printer.h"

#include "display_text.h"
#include "text.h"
#include "unread_text.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cstdio>
#include <unistd.h>

QString json_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

namespace {

QJsonArray json_texts(const std::vector<std::string>& texts) {
    QJsonArray array;
    for (const std::string& text : texts)
        array.append(json_text(text));
    return array;
}

} // namespace

void print_json_object(QJsonObject object, const conversation_log& log) {
    object.insert(QStringLiteral("status"), json_text(log.status));
    object.insert(QStringLiteral("messages"), json_texts(log.messages));
    object.insert(QStringLiteral("statuses"), json_texts(log.statuses));
    std::fputs(QJsonDocument(object).toJson().constData(), stdout);
}

void print_codes_json(const codes_report& report, const conversation_log& log) {
    QJsonArray codes;
    for (const code_row& row : report.codes)
        codes.append(QJsonObject{{QStringLiteral("code"), json_text(row[0])},
                                 {QStringLiteral("description"), json_text(trimmed(row[1]))}});
    QJsonArray readiness;
    for (const readiness_flag& flag : report.readiness)
        readiness.append(QJsonObject{{QStringLiteral("state"), json_text(flag.state)},
                                     {QStringLiteral("monitor"), json_text(trimmed(flag.monitor))},
                                     {QStringLiteral("kind"), json_text(flag.kind)}});
    QJsonArray unread;
    for (const unread_piece& one : report.unread)
        unread.append(QJsonObject{{QStringLiteral("kind"), json_text(unread_name(one.kind))},
                                  {QStringLiteral("text"), json_text(one.text)}});
    print_json_object(
        {{QStringLiteral("lamp"), json_text(report.lamp)},
         {QStringLiteral("count"), report.count ? QJsonValue(*report.count) : QJsonValue()},
         {QStringLiteral("read_on"), json_text(report.read_on)},
         {QStringLiteral("interface"), json_text(report.interface)},
         {QStringLiteral("protocol"), json_text(report.protocol)},
         {QStringLiteral("ecus"), report.ecus},
         {QStringLiteral("codes"), codes},
         {QStringLiteral("unread_count"), static_cast<int>(report.unread.size())},
         {QStringLiteral("unread"), unread},
         {QStringLiteral("readiness"), readiness}},
        log);
}

void print_codes_text(const codes_report& report) {
    std::printf("Adapter      %s\nProtocol     %s\nLamp         %s\n",
                printable(report.interface).c_str(), printable(report.protocol).c_str(),
                report.lamp.c_str());
    std::printf("Codes        %s\nRead on      %s\nUnits        %d\n",
                report.count ? std::to_string(*report.count).c_str() : "N/A",
                report.read_on.c_str(), report.ecus);
    std::printf("\nTrouble codes\n");
    for (const code_row& row : report.codes)
        std::printf("  %-7s%s\n", row[0].c_str(), std::string(trimmed(row[1])).c_str());
    if (!report.unread.empty())
        std::printf("  not read whole\n");
    else if (report.codes.empty())
        std::printf("  none\n");
    std::printf("\nReadiness monitors\n");
    for (const readiness_flag& flag : report.readiness)
        std::printf("  %-5s%-48s%s\n", flag.state.c_str(), flag.monitor.c_str(), flag.kind.c_str());
    if (report.readiness.empty())
        std::printf("  not told\n");
}

void print_raw_reply(const std::string& reply) {
    // A person reads lines; a program gets every byte.
    std::string text = isatty(STDOUT_FILENO) ? printable(reply) : reply;
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), stdout);
}

void print_replies_json(const std::vector<std::string>& commands,
                        const std::vector<std::string>& replies, const conversation_log& log) {
    QJsonArray array;
    for (std::size_t i = 0; i < replies.size(); ++i)
        array.append(QJsonObject{{QStringLiteral("command"), json_text(commands[i])},
                                 {QStringLiteral("reply"), json_text(replies[i])}});
    print_json_object({{QStringLiteral("replies"), array}}, log);
}

bool output_lost() {
    return std::fflush(stdout) != 0 || std::ferror(stdout) != 0;
}

std::string printable(const std::string& text) {
    return display_text(text).toStdString();
}

std::string json_string(std::string_view text) {
    const QByteArray array =
        QJsonDocument(QJsonArray{json_text(text)}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2).toStdString();
}

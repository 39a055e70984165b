#include "lookup_command.h"

#include "code_search.h"
#include "mac_toolies.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <ostream>

namespace {

constexpr int FAILED_STATUS = 1;
constexpr int USAGE_STATUS = 2;

QString json_text(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

int run_lookup(std::span<const std::string> arguments, const mac_toolies& toolies,
               std::ostream& out, std::ostream& err) {
    std::string wanted;
    bool json = false;
    for (const std::string& argument : arguments) {
        if (argument == "--json") {
            json = true;
        } else if (argument.starts_with("-")) {
            err << "kestrom: unknown option " << argument << "\nTry 'kestrom lookup --help'.\n";
            return USAGE_STATUS;
        } else {
            wanted += (wanted.empty() ? "" : " ") + argument;
        }
    }
    if (wanted.find_first_not_of(' ') == wanted.npos) {
        err << "kestrom: lookup needs a code or words, such as P0301 or \"oil pressure\"\n"
               "Try 'kestrom lookup --help'.\n";
        return USAGE_STATUS;
    }
    const std::vector<found_code> found = search_codes(toolies, wanted);
    QJsonArray codes;
    for (const auto& [code, description] : found) {
        if (json)
            codes.append(QJsonObject{{QStringLiteral("code"), json_text(code)},
                                     {QStringLiteral("description"), json_text(description)}});
        else
            out << code << "  " << description << '\n';
    }
    if (json)
        out << QJsonDocument(QJsonObject{{QStringLiteral("codes"), codes}}).toJson().toStdString();
    if (!found.empty())
        return 0;
    err << "kestrom: lookup found nothing\n";
    return FAILED_STATUS;
}

// How the command line prints what the screens found.
#pragma once

#include "readCodes.h"

#include <QJsonObject>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

struct conversation_log {
    std::string status;
    std::vector<std::string> messages; // every alert, in order
    std::vector<std::string> statuses; // every status text, in order
};

QString json_text(std::string_view text);
// With what was told on the way.
void print_json_object(QJsonObject object, const conversation_log& log);
void print_codes_text(const codes_report& report);
void print_codes_json(const codes_report& report, const conversation_log& log);
void print_raw_reply(const std::string& reply);
void print_replies_json(const std::vector<std::string>& commands,
                        const std::vector<std::string>& replies, const conversation_log& log);

// Some of standard output could not be written; main tells it once the command is over.
bool output_lost();

// Without control characters, so that an adapter's bytes do not drive the terminal; line ends
// become "\n".
std::string printable(const std::string& text);

// A JSON string, quotes included.
std::string json_string(std::string_view text);

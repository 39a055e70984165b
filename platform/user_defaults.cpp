#include "user_defaults.h"

#include "system_log.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>

#include <charconv>

namespace {

QString qstring(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QStringList qstrings(const std::vector<std::string>& values) {
    QStringList list;
    for (const std::string& v : values)
        list.append(qstring(v));
    return list;
}

// Keys from damaged lines, which cannot be read by name. Written back, they would become the key
// without the slashes.
bool is_damaged(const QString& key) {
    return key.isEmpty() || key.startsWith(u'/') || key.endsWith(u'/') ||
           key.contains(QLatin1String("//"));
}

} // namespace

user_defaults::user_defaults(std::string path) : path_(std::move(path)) {
    load();
}

std::string user_defaults::default_path() {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    return (folder + QStringLiteral("/kestrom/kestrom.conf")).toStdString();
}

void user_defaults::load() {
    const QSettings file(qstring(path_), QSettings::IniFormat);
    if (file.status() != QSettings::NoError)
        qCWarning(log_platform, "settings file %s could not be read whole", path_.c_str());
    for (const QString& key : file.allKeys()) {
        if (is_damaged(key))
            continue;
        const QVariant v = file.value(key);
        // An empty list is written as an invalid value; one entry comes back as plain text.
        if (!v.isValid() || v.typeId() == QMetaType::QStringList) {
            std::vector<std::string> list;
            for (const QString& s : v.toStringList())
                list.push_back(s.toStdString());
            values_[key.toStdString()] = std::move(list);
        } else {
            values_[key.toStdString()] = v.toString().toStdString();
        }
    }
}

bool user_defaults::contains(std::string_view key) const {
    return values_.contains(key);
}

std::string user_defaults::string(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end())
        return {};
    const auto* text = std::get_if<std::string>(&found->second);
    return text ? *text : std::string();
}

int user_defaults::integer(std::string_view key) const {
    const std::string text = string(key);
    int number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
}

bool user_defaults::boolean(std::string_view key) const {
    if (const auto cached = booleans_.find(key); cached != booleans_.end())
        return cached->second;
    const std::string text = string(key);
    const bool value = text == "true" || (text != "false" && integer(key) != 0);
    booleans_.emplace(key, value);
    return value;
}

std::optional<std::vector<std::string>> user_defaults::string_array(std::string_view key) const {
    const auto found = values_.find(key);
    if (found == values_.end())
        return std::nullopt;
    if (const auto* list = std::get_if<std::vector<std::string>>(&found->second))
        return *list;
    return std::vector<std::string>{std::get<std::string>(found->second)};
}

void user_defaults::set_integer(std::string_view key, int value) {
    set_string(key, std::to_string(value));
}

void user_defaults::set_boolean(std::string_view key, bool value) {
    set_string(key, value ? "true" : "false");
}

void user_defaults::set_string(std::string_view key, std::string_view text) {
    booleans_.clear();
    values_.insert_or_assign(std::string(key), std::string(text));
}

void user_defaults::set_string_array(std::string_view key, std::vector<std::string> list) {
    booleans_.clear();
    values_.insert_or_assign(std::string(key), std::move(list));
}

bool user_defaults::synchronize() {
    QDir().mkpath(QFileInfo(qstring(path_)).absolutePath());
    QSettings file(qstring(path_), QSettings::IniFormat);
    for (const auto& [key, v] : values_) {
        if (const auto* list = std::get_if<std::vector<std::string>>(&v))
            file.setValue(qstring(key), qstrings(*list));
        else
            file.setValue(qstring(key), qstring(std::get<std::string>(v)));
    }
    file.sync();
    if (file.status() == QSettings::NoError)
        return true;
    qCWarning(log_platform, "settings file %s could not be written", path_.c_str());
    return false;
}

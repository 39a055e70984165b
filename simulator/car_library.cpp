#include "car_library.h"

#include <QDir>
#include <QFile>

namespace {

constexpr char SHELF[] = ":/cars/";
constexpr char SUFFIX[] = ".json";

QString shelf_path(const std::string& name) {
    return QLatin1String(SHELF) + QString::fromStdString(name) + QLatin1String(SUFFIX);
}

} // namespace

car_file_error::car_file_error(std::string file, int line, std::string reason)
    : std::runtime_error(file + (line > 0 ? ":" + std::to_string(line) : "") + ": " + reason),
      file_(std::move(file)), line_(line), reason_(std::move(reason)) {}

std::vector<std::string> car_names() {
    std::vector<std::string> names;
    const QDir shelf{QLatin1String(SHELF)};
    const QStringList files = shelf.entryList({QLatin1String("*.json")}, QDir::Files, QDir::Name);
    for (const QString& file : files)
        if (file != QLatin1String("car.schema.json"))
            names.push_back(file.chopped(qsizetype(sizeof SUFFIX) - 1).toStdString());
    return names;
}

car load_car(const std::string& name_or_file) {
    if (name_or_file.empty())
        throw car_file_error("", 0, "a car needs a name");
    const bool on_shelf = name_or_file.find_first_of("/.") == std::string::npos &&
                          QFile::exists(shelf_path(name_or_file));
    QFile file(on_shelf ? shelf_path(name_or_file) : QString::fromStdString(name_or_file));
    if (!file.open(QIODevice::ReadOnly))
        throw car_file_error(name_or_file, 0,
                             "neither a car's name nor a readable file (" +
                                 file.errorString().toStdString() +
                                 "); kestrom-virtual-car --list names the cars");
    const QByteArray text = file.readAll();
    return read_car(std::string_view(text.constData(), std::size_t(text.size())),
                    on_shelf ? name_or_file + SUFFIX : name_or_file);
}

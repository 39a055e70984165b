// kestrom-gallery: renders every state of the program and checks the layout rules, in one language,
// size, scale and palette; scripts/gallery runs it for each. Exit status 1 if a rule is broken.
//
//   kestrom-gallery --list
//   kestrom-gallery [--language de] [--size 1024x600] [--scale 150] [--dark]
//                   [--check | --into FOLDER] [SCENE...]
#include "quick_style.h"
#include "stage.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QPalette>

#include <cstdio>

namespace {

// The scale and the screen must be known before there is an application.
QString argument(int argc, char** argv, const char* name, const char* otherwise) {
    for (int i = 1; i + 1 < argc; ++i)
        if (qstrcmp(argv[i], name) == 0)
            return QString::fromLocal8Bit(argv[i + 1]);
    return QLatin1String(otherwise);
}

QSize size_of(const QString& text) {
    return {text.section(u'x', 0, 0).toInt(), text.section(u'x', 1, 1).toInt()};
}

// A screen as large as the smallest that such a window is used on.
void make_screen(const QSize& window, double scale, const QString& folder) {
    const QSize pixels = window.expandedTo({1024, 600}) * scale;
    const QString path = folder + QStringLiteral("/screen.json");
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(QStringLiteral("{\"screens\": [{\"name\": \"screen\", \"x\": 0, \"y\": 0, "
                                  "\"width\": %1, \"height\": %2, \"logicalDpi\": 96, "
                                  "\"logicalBaseDpi\": 96, \"dpr\": 1}]}")
                       .arg(pixels.width())
                       .arg(pixels.height())
                       .toUtf8());
    qputenv("QT_QPA_PLATFORM", QStringLiteral("offscreen:configfile=%1").arg(path).toLocal8Bit());
    qputenv("QT_SCALE_FACTOR", QByteArray::number(scale));
}

QPalette dark_palette() {
    QPalette dark(QColor(53, 56, 60));
    const QColor text(232, 232, 232), quiet(150, 152, 155);
    dark.setColor(QPalette::Base, QColor(38, 40, 43));
    dark.setColor(QPalette::AlternateBase, QColor(45, 47, 51));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::HighlightedText, QPalette::ToolTipText}) {
        dark.setColor(role, text);
        dark.setColor(QPalette::Disabled, role, quiet);
    }
    dark.setColor(QPalette::PlaceholderText, QColor(160, 163, 167));
    return dark;
}

struct wanted {
    std::string language;
    QSize size;
    QString folder; // empty: only the rules
    QStringList names;
};

int show_all(const wanted& asked) {
    bool sound = true;
    for (const scene& each : scenes()) {
        const QString name =
            QLatin1String(each.name.data(), static_cast<qsizetype>(each.name.size()));
        if (!asked.names.isEmpty() && !asked.names.contains(name))
            continue;
        stage on(each, asked.language, asked.size);
        each.play(on);
        const QImage& picture = on.picture();
        for (const std::string& complaint : on.complaints()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(name), complaint.c_str());
            sound = false;
        }
        if (!asked.folder.isEmpty() &&
            !picture.save(asked.folder + u'/' + name + QStringLiteral(".png")))
            return 2;
    }
    return sound ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const QSize size = size_of(argument(argc, argv, "--size", "1100x720"));
    const QTemporaryDir folder;
    make_screen(size, argument(argc, argv, "--scale", "100").toDouble() / 100, folder.path());
    QApplication application(argc, argv);
    QApplication::setStyle(new quick_style);
    QApplication::setApplicationDisplayName(QStringLiteral("Kestrom"));
    QCommandLineParser asked;
    const QCommandLineOption list(QStringLiteral("list")), dark(QStringLiteral("dark")),
        language(QStringLiteral("language"), {}, QStringLiteral("en"), QStringLiteral("en")),
        into(QStringLiteral("into"), {}, QStringLiteral("folder")),
        ignored_size(QStringLiteral("size"), {}, QStringLiteral("size")),
        ignored_scale(QStringLiteral("scale"), {}, QStringLiteral("percent")),
        check(QStringLiteral("check"));
    asked.addOptions({list, dark, language, into, ignored_size, ignored_scale, check});
    asked.process(application);
    if (asked.isSet(list)) {
        for (const scene& each : scenes())
            std::printf("%s\t%s\n", std::string(each.name).c_str(), std::string(each.what).c_str());
        return 0;
    }
    if (asked.isSet(dark))
        QApplication::setPalette(dark_palette());
    if (asked.isSet(into))
        QDir().mkpath(asked.value(into));
    return show_all({asked.value(language).toStdString(), size, asked.value(into),
                     asked.positionalArguments()});
}

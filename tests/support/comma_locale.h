// While it lives, the C library reads and prints numbers with a decimal comma.
#pragma once

#include <QProcess>
#include <QTemporaryDir>

#include <clocale>
#include <cstdio>

class comma_locale {
  public:
    comma_locale() {
        // Made on the spot: few systems have a foreign locale installed.
        const QString path = folder_.filePath(QStringLiteral("comma"));
        const QStringList made{QStringLiteral("-i"), QStringLiteral("de_DE"), QStringLiteral("-f"),
                               QStringLiteral("ISO-8859-1"), path};
        QProcess::execute(QStringLiteral("localedef"), made);
        qputenv("LOCPATH", folder_.path().toUtf8());
        std::setlocale(LC_ALL, "comma");
    }
    ~comma_locale() {
        qunsetenv("LOCPATH");
        std::setlocale(LC_ALL, "C");
    }
    comma_locale(const comma_locale&) = delete;
    comma_locale& operator=(const comma_locale&) = delete;

    // False where the locale cannot be made; the test then proves nothing and should be skipped.
    bool holds() const {
        char text[8];
        std::snprintf(text, sizeof text, "%.1f", 0.5);
        return text[1] == ',';
    }

  private:
    QTemporaryDir folder_;
};

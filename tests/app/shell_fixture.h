// The program as a user runs it from a shell, in a home of its own; a test may serve it a virtual
// car.
#pragma once

#include "tcp_adapter_server.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <string>
#include <vector>

struct outcome {
    int status = -1;
    std::string out, err;
    QJsonObject json() const {
        return QJsonDocument::fromJson(QByteArray::fromStdString(out)).object();
    }
    std::string text(const char* key) const {
        return json().value(QLatin1String(key)).toString().toStdString();
    }
};

class shell : public testing::Test {
  protected:
    // Runs kestrom while this process goes on serving its virtual car.
    outcome run(const std::vector<std::string>& arguments) {
        QProcess process;
        start(process, arguments, home.path());
        while (process.state() != QProcess::NotRunning)
            QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents,
                                            100);
        return {process.exitCode(), process.readAllStandardOutput().toStdString(),
                process.readAllStandardError().toStdString()};
    }
    // Everything that is the user's is below `users_home`.
    static void start(QProcess& process, const std::vector<std::string>& arguments,
                      const QString& users_home) {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME"})
            surroundings.insert(QLatin1String(name), users_home);
        surroundings.remove(QStringLiteral("DISPLAY"));
        surroundings.remove(QStringLiteral("XDG_RUNTIME_DIR"));
        surroundings.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"),
                            QStringLiteral("unix:path=/nonexistent")); // this machine's own
        process.setProcessEnvironment(surroundings);
        QStringList words;
        for (const std::string& argument : arguments)
            words.append(QString::fromStdString(argument));
        process.start(QStringLiteral(KESTROM_PROGRAM), words);
    }
    std::string address(const tcp_adapter_server& server) {
        return "127.0.0.1:" + std::to_string(server.port());
    }

    static adapter_options quick() {
        adapter_options options;
        options.latency = std::chrono::milliseconds(0);
        return options;
    }
    QTemporaryDir home;
};

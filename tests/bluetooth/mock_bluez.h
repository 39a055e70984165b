// A Bluetooth service that is none: python3-dbusmock's BlueZ template on a private message bus. One
// per test; the machine's own bus and its Bluetooth are never touched.
#pragma once

#include "bluez_names.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusUnixFileDescriptor>
#include <QElapsedTimer>
#include <QProcess>
#include <QTest>
#include <QUuid>

#include <gtest/gtest.h>
#include <string>

class mock_bluez {
  public:
    // With `service` the mock of BlueZ runs from the start, without any adapter.
    explicit mock_bluez(bool service = true) {
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--session"), QStringLiteral("--nofork"),
                       QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
        if (daemon_.waitForReadyRead(10'000))
            address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
        control_ = connect();
        if (service)
            start_service();
    }
    ~mock_bluez() {
        for (QProcess* process : {&mock_, &daemon_}) {
            process->kill();
            process->waitForFinished();
        }
        for (const QString& name : names_)
            QDBusConnection::disconnectFromBus(name);
    }

    bool usable() const { return control_.isConnected(); }

    // A connection to the private bus, as the program has one to the system's.
    QDBusConnection connect() {
        names_.append(QUuid::createUuid().toString());
        return QDBusConnection::connectToBus(address_, names_.back());
    }

    void start_service() {
        QProcessEnvironment surroundings = QProcessEnvironment::systemEnvironment();
        surroundings.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), address_);
        mock_.setProcessEnvironment(surroundings);
        mock_.setStandardOutputFile(QProcess::nullDevice());
        // Debian's own Python, which has Debian's module.
        mock_.start(QStringLiteral("/usr/bin/python3"),
                    {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
                     QStringLiteral("--template"), QStringLiteral("bluez5")});
        QElapsedTimer patience;
        patience.start();
        while (patience.elapsed() < 20'000 && mock_.state() != QProcess::NotRunning) {
            const QDBusMessage answer = control_.call(
                QDBusMessage::createMethodCall(BLUEZ, QStringLiteral("/"), OBJECT_MANAGER_INTERFACE,
                                               QStringLiteral("GetManagedObjects")));
            if (answer.type() == QDBusMessage::ReplyMessage)
                return;
            QTest::qWait(20);
        }
        ADD_FAILURE() << "the mock does not run: " << mock_.readAllStandardError().toStdString();
    }
    void stop_service() {
        mock_.kill();
        mock_.waitForFinished();
    }

    void add_adapter() {
        call("/", "org.bluez.Mock", "AddAdapter", {QStringLiteral("hci0"), QStringLiteral("desk")});
    }
    // Answers the object's path. With a class it is a classic one.
    std::string add_device(const char* address, const std::string& name,
                           uint device_class = 0x1F00) {
        const std::string path =
            call("/", "org.bluez.Mock", "AddDevice",
                 {QStringLiteral("hci0"), QLatin1String(address), QString::fromStdString(name)})
                .arguments()
                .value(0)
                .toString()
                .toStdString();
        set_device(path, {{QStringLiteral("Class"), device_class}});
        return path;
    }
    void set(const std::string& path, const QString& interface, const QVariantMap& properties) {
        call(path.c_str(), "org.freedesktop.DBus.Mock", "UpdateProperties",
             {interface, properties});
    }
    void set_device(const std::string& path, const QVariantMap& properties) {
        set(path, DEVICE_INTERFACE, properties);
    }
    void power(bool on) {
        set("/org/bluez/hci0", ADAPTER_INTERFACE, {{QStringLiteral("Powered"), on}});
    }
    // Runs Python in the mock; its `objects` by path, and what was run before, are there.
    void run(const std::string& python) {
        call("/", "org.freedesktop.DBus.Mock", "AddMethod",
             {QStringLiteral("org.bluez.Mock"), QStringLiteral("Run"), QStringLiteral("s"),
              QString(), QStringLiteral("exec(args[0], globals())")});
        call("/", "org.bluez.Mock", "Run", {QString::fromStdString(python)});
    }
    // The words of a Python expression.
    std::string told(const std::string& python) {
        call("/", "org.freedesktop.DBus.Mock", "AddMethod",
             {QStringLiteral("org.bluez.Mock"), QStringLiteral("Tell"), QStringLiteral("s"),
              QStringLiteral("s"), QStringLiteral("ret = eval(args[0], globals())")});
        return call("/", "org.bluez.Mock", "Tell", {QString::fromStdString(python)})
            .arguments()
            .value(0)
            .toString()
            .toStdString();
    }
    void remove_device(const std::string& path) {
        call("/org/bluez/hci0", "org.bluez.Adapter1", "RemoveDevice",
             {QVariant::fromValue(QDBusObjectPath(QString::fromStdString(path)))});
    }
    // What ConnectProfile of the device does from now on: Python.
    void on_connect(const std::string& path, const std::string& code) {
        call(path.c_str(), "org.freedesktop.DBus.Mock", "AddMethod",
             {DEVICE_INTERFACE, QStringLiteral("ConnectProfile"), QStringLiteral("s"), QString(),
              QString::fromStdString(code)});
    }
    // Hands a descriptor to the profile that `client` registered last, as BlueZ does.
    QDBusPendingCall hand_over(const QDBusConnection& client, const std::string& device,
                               int descriptor) {
        QDBusMessage message =
            QDBusMessage::createMethodCall(client.baseService(), last_profile(), PROFILE_INTERFACE,
                                           QStringLiteral("NewConnection"));
        message << QVariant::fromValue(QDBusObjectPath(QString::fromStdString(device)))
                << QVariant::fromValue(QDBusUnixFileDescriptor(descriptor)) << QVariantMap();
        return control_.asyncCall(message);
    }
    // Calls of `method` on an object of the mock so far.
    qsizetype calls(const char* path, const char* method) {
        qsizetype count = 0;
        each_call(path, method, [&](const QVariantList&) { ++count; });
        return count;
    }

  private:
    QDBusMessage call(const char* path, const char* interface, const char* method,
                      const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createMethodCall(
            BLUEZ, QLatin1String(path), QLatin1String(interface), QLatin1String(method));
        message.setArguments(arguments);
        const QDBusMessage answer = control_.call(message);
        EXPECT_EQ(answer.errorMessage().toStdString(), "") << method;
        return answer;
    }
    // Each entry is (time, arguments).
    template <class visitor>
    void each_call(const char* path, const char* method, visitor visit) {
        const auto log =
            call(path, "org.freedesktop.DBus.Mock", "GetMethodCalls", {QLatin1String(method)})
                .arguments()
                .value(0)
                .value<QDBusArgument>();
        log.beginArray();
        while (!log.atEnd()) {
            qulonglong when = 0;
            QVariantList arguments;
            log.beginStructure();
            log >> when >> arguments;
            log.endStructure();
            visit(arguments);
        }
        log.endArray();
    }
    QString last_profile() {
        QString path;
        each_call("/org/bluez", "RegisterProfile", [&](const QVariantList& arguments) {
            path = arguments.value(0).value<QDBusObjectPath>().path();
        });
        return path;
    }

    QProcess daemon_, mock_;
    QString address_;
    QStringList names_;
    QDBusConnection control_{QString()};
};

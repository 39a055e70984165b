// Names of BlueZ on the system bus, and the shape of its object lists.
#pragma once

#include <QDBusObjectPath>
#include <QMap>
#include <QString>
#include <QVariantMap>

inline const QString BLUEZ = QStringLiteral("org.bluez");
inline const QString BLUEZ_ROOT = QStringLiteral("/org/bluez");
inline const QString ADAPTER_INTERFACE = QStringLiteral("org.bluez.Adapter1");
inline const QString DEVICE_INTERFACE = QStringLiteral("org.bluez.Device1");
inline const QString SERVICE_INTERFACE = QStringLiteral("org.bluez.GattService1");
inline const QString CHARACTERISTIC_INTERFACE = QStringLiteral("org.bluez.GattCharacteristic1");
inline const QString PROFILE_INTERFACE = QStringLiteral("org.bluez.Profile1");
inline const QString PROFILE_MANAGER_INTERFACE = QStringLiteral("org.bluez.ProfileManager1");
inline const QString OBJECT_MANAGER_INTERFACE =
    QStringLiteral("org.freedesktop.DBus.ObjectManager");
inline const QString PROPERTIES_INTERFACE = QStringLiteral("org.freedesktop.DBus.Properties");

// The Serial Port service class, 0x1101, as BlueZ writes it.
inline const QString SERIAL_PORT_UUID_TEXT = QStringLiteral("00001101-0000-1000-8000-00805f9b34fb");

using interface_properties = QMap<QString, QVariantMap>; // by interface name
using managed_objects = QMap<QDBusObjectPath, interface_properties>;

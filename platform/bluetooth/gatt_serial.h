// A Low Energy adapter's serial port. There is no standard, only a few services that makers copy
// from each other: one characteristic notifies, another is written.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// UUIDs and object paths as BlueZ writes them.
struct gatt_characteristic {
    QString path;
    QString uuid;
    QString service; // its UUID
    QStringList flags;
};

struct gatt_serial_port {
    QString notifies;
    QString written;
    bool with_response = false;
};

bool is_serial_service(const QString& uuid);

// `characteristics` of one device, in its order.
std::optional<gatt_serial_port>
find_serial_port(const std::vector<gatt_characteristic>& characteristics);

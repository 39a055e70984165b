// Where a Low Energy adapter keeps its serial port. No standard says so: it is one of a few
// services that makers copy from each other, with a characteristic that notifies and one that is
// written.
#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

// UUIDs as BlueZ writes them, paths of its objects.
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

#include "gatt_serial.h"

#include <algorithm>

namespace {

struct serial_service {
    QString service, notifies, written;
};

QString assigned(const char* number) {
    return QStringLiteral("0000%1-0000-1000-8000-00805f9b34fb").arg(QLatin1String(number));
}

QString nordic(const char* number) {
    return QStringLiteral("6e40%1-b5a3-f393-e0a9-e50e24dcca9e").arg(QLatin1String(number));
}

const std::vector<serial_service>& serial_services() {
    static const std::vector<serial_service> rows{
        {assigned("fff0"), assigned("fff1"), assigned("fff2")},
        {assigned("ffe0"), assigned("ffe1"), assigned("ffe1")},
        {assigned("18f0"), assigned("2af0"), assigned("2af1")},
        {nordic("0001"), nordic("0003"), nordic("0002")}, // Nordic UART
    };
    return rows;
}

const QString WITHOUT_RESPONSE = QStringLiteral("write-without-response");

bool notifies(const gatt_characteristic& one) {
    return one.flags.contains(QLatin1String("notify"));
}
bool is_written(const gatt_characteristic& one) {
    return one.flags.contains(QLatin1String("write")) || one.flags.contains(WITHOUT_RESPONSE);
}

// The usual one if it qualifies, else the first that does.
template <class condition>
const gatt_characteristic* best(const std::vector<gatt_characteristic>& characteristics,
                                const QString& service, const QString& usual, condition fits) {
    const gatt_characteristic* found = nullptr;
    for (const gatt_characteristic& one : characteristics)
        if (one.service == service && fits(one) && (!found || one.uuid == usual))
            found = &one;
    return found;
}

} // namespace

bool is_serial_service(const QString& uuid) {
    return std::ranges::find(serial_services(), uuid.toLower(), &serial_service::service) !=
           serial_services().end();
}

std::optional<gatt_serial_port>
find_serial_port(const std::vector<gatt_characteristic>& characteristics) {
    for (const serial_service& row : serial_services()) {
        const auto* input = best(characteristics, row.service, row.notifies, notifies);
        const auto* output = best(characteristics, row.service, row.written, is_written);
        if (input && output)
            return gatt_serial_port{input->path, output->path,
                                    !output->flags.contains(WITHOUT_RESPONSE)};
    }
    return std::nullopt;
}

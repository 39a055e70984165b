#include "qt_serial_line.h"

#include <QSerialPortInfo>

#include <algorithm>
#include <unistd.h>

namespace {
constexpr qint64 READ_BUFFER = 256 * 1024; // a flood waits in the kernel, not in our memory
}

serial_failure qt_serial_line::open(const std::string& path, listener events) {
    if (serial_failure refused = problem_of_path(path); refused.problem != serial_problem::none)
        return refused;
    path_ = path;
    port_.setPortName(QString::fromStdString(path));
    port_.setReadBufferSize(READ_BUFFER);
    if (!port_.open(QIODevice::ReadWrite)) {
        if (port_.error() ==
            QSerialPort::PermissionError) // not for lack of permission: the file is accessible
            return {serial_problem::busy};
        return {serial_problem::other, port_.errorString().toStdString()};
    }
    events_ = std::move(events);
    connect(&port_, &QSerialPort::readyRead, this, [this] { events_.readable(); });
    connect(&port_, &QSerialPort::errorOccurred, this, &qt_serial_line::failed,
            Qt::QueuedConnection); // may be emitted inside an operation
    return {};
}

bool qt_serial_line::set_speed(long baud) {
    if (!port_.setBaudRate(static_cast<qint32>(baud)))
        return false;
    port_.clear(QSerialPort::Input);
    return true;
}

std::string qt_serial_line::read(std::size_t most) {
    if (port_.isOpen())
        return port_.read(static_cast<qint64>(most)).toStdString();
    const QByteArray bytes = left_.left(static_cast<qsizetype>(most));
    left_.remove(0, bytes.size());
    return bytes.toStdString();
}

bool qt_serial_line::more_to_read() const {
    return port_.isOpen() ? port_.bytesAvailable() > 0 : !left_.isEmpty();
}

void qt_serial_line::write(std::string_view bytes) {
    if (!port_.isOpen())
        return;
    // Directly to the system if nothing is queued: the port's buffer is written only in the next
    // turn of the event loop.
    ssize_t sent = 0;
    if (port_.bytesToWrite() == 0)
        sent = std::max<ssize_t>(::write(port_.handle(), bytes.data(), bytes.size()), 0);
    bytes.remove_prefix(static_cast<std::size_t>(sent));
    if (!bytes.empty()) // what did not fit, or failed; the port then reports the error
        port_.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void qt_serial_line::failed(QSerialPort::SerialPortError error) {
    const bool gone = error == QSerialPort::ResourceError || error == QSerialPort::ReadError ||
                      error == QSerialPort::WriteError;
    if (!gone || !port_.isOpen())
        return;
    // While the file is open, an adapter plugged in again gets another name.
    left_ = port_.readAll();
    port_.close();
    events_.lost();
}

void qt_serial_line::close() {
    port_.disconnect(this);
    if (port_.isOpen())
        port_.close();
}

serial_failure qt_serial_line::why_gone() const {
    const serial_failure why = problem_of_path(path_);
    return why.problem == serial_problem::none
               ? serial_failure{serial_problem::other, port_.errorString().toStdString()}
               : why;
}

std::vector<serial_port_entry> list_serial_ports() {
    QList<QSerialPortInfo> ports = QSerialPortInfo::availablePorts();
    std::ranges::sort(ports, {}, [](const QSerialPortInfo& port) {
        return std::pair(!port.hasVendorIdentifier(), port.systemLocation());
    });
    std::vector<serial_port_entry> entries;
    for (const QSerialPortInfo& port : ports)
        entries.push_back({port.systemLocation().toStdString(), port.description().toStdString(),
                           port.manufacturer().toStdString()});
    return entries;
}

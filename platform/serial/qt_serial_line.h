// The real serial line, and the list of existing ports.
#pragma once

#include "serial_line.h"
#include "serial_port_list.h"

#include <QByteArray>
#include <QObject>
#include <QSerialPort>

class qt_serial_line final : public QObject, public serial_line {
    Q_OBJECT
  public:
    serial_failure open(const std::string& path, listener events) override;
    bool set_speed(long baud) override;
    std::string read(std::size_t most) override;
    bool more_to_read() const override;
    void write(std::string_view bytes) override;
    void close() override;
    serial_failure why_gone() const override;

  private:
    void failed(QSerialPort::SerialPortError error);

    std::string path_;
    QSerialPort port_;
    QByteArray left_; // unread bytes of a lost port
    listener events_;
};

// USB ports first.
std::vector<serial_port_entry> list_serial_ports();

// The adapter on a real port, over loopback.
#include "car_library.h"
#include "tcp_adapter_server.h"

#include <QTcpSocket>
#include <QTest>

#include <gtest/gtest.h>

namespace {

adapter_options at_once(const std::vector<fault>& faults = {}) {
    adapter_options options;
    options.latency = std::chrono::milliseconds(0);
    options.faults = fault_set(faults);
    return options;
}

// Sends the command and waits for a prompt.
std::string say(QTcpSocket& client, const char* command) {
    client.write(command);
    QByteArray reply;
    (void)QTest::qWaitFor([&] {
        reply += client.readAll();
        return reply.endsWith('>') || client.state() != QAbstractSocket::ConnectedState;
    });
    return reply.toStdString();
}

bool connect_to(QTcpSocket& client, const tcp_adapter_server& server) {
    client.connectToHost(QStringLiteral("127.0.0.1"), quint16(server.port()));
    return QTest::qWaitFor([&] { return client.state() == QAbstractSocket::ConnectedState; });
}

TEST(tcp_server_test, clients_one_after_another_meet_the_same_car) {
    tcp_adapter_server server(load_car("can11"), at_once());
    ASSERT_TRUE(server.listen("127.0.0.1", 0)) << server.error();
    QTcpSocket first, second;
    ASSERT_TRUE(connect_to(first, server));
    EXPECT_EQ(say(first, "AT E0\r"), "AT E0\rOK\r\r>");
    ASSERT_TRUE(connect_to(second, server)); // waits for its turn
    second.write("03\r");
    EXPECT_EQ(say(first, "04\r"), "SEARCHING...\r44\r44\r\r>");
    EXPECT_EQ(second.bytesAvailable(), 0);
    first.disconnectFromHost();
    EXPECT_EQ(say(second, ""), "43 00\r43 00\r\r>");
}

TEST(tcp_server_test, a_client_that_left_while_waiting_keeps_nobody_waiting) {
    tcp_adapter_server server(load_car("can11"), at_once());
    ASSERT_TRUE(server.listen("127.0.0.1", 0)) << server.error();
    QTcpSocket first, leaving, last;
    ASSERT_TRUE(connect_to(first, server));
    EXPECT_EQ(say(first, "AT E0\r"), "AT E0\rOK\r\r>");
    ASSERT_TRUE(connect_to(leaving, server));
    leaving.disconnectFromHost();
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return leaving.state() == QAbstractSocket::UnconnectedState; }));
    ASSERT_TRUE(connect_to(last, server));
    EXPECT_EQ(say(first, "AT I\r"), "ELM327 v1.5\r\r>");
    first.disconnectFromHost();
    EXPECT_EQ(say(last, "AT I\r"), "ELM327 v1.5\r\r>");
}

TEST(tcp_server_test, a_client_closed_at_its_first_waiting_bytes_lets_the_next_in) {
    tcp_adapter_server server(load_car("can11"), at_once({{fault_kind::close_after, 0}}));
    ASSERT_TRUE(server.listen("127.0.0.1", 0)) << server.error();
    QTcpSocket first, second, third;
    ASSERT_TRUE(connect_to(first, server));
    for (QTcpSocket* const waiting : {&second, &third}) {
        ASSERT_TRUE(connect_to(*waiting, server));
        waiting->write("AT I\r");
        waiting->flush();
    }
    first.disconnectFromHost();
    for (QTcpSocket* const waiting : {&second, &third})
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return waiting->state() == QAbstractSocket::UnconnectedState; }));
}

TEST(tcp_server_test, refuse_and_close_are_seen_by_the_client) {
    tcp_adapter_server refusing(load_car("can11"), at_once({{fault_kind::refuse, 0}}));
    ASSERT_TRUE(refusing.listen("127.0.0.1", 0));
    ASSERT_GT(refusing.port(), 0);
    QTcpSocket client;
    client.connectToHost(QStringLiteral("127.0.0.1"), quint16(refusing.port()));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return client.error() == QAbstractSocket::ConnectionRefusedError; }));

    tcp_adapter_server closing(load_car("can11"), at_once({{fault_kind::close_after, 1}}));
    ASSERT_TRUE(closing.listen("127.0.0.1", 0));
    QTcpSocket other;
    ASSERT_TRUE(connect_to(other, closing));
    EXPECT_EQ(say(other, "AT E0\r"), "AT E0\rOK\r\r>");
    EXPECT_EQ(say(other, "AT I\r"), "");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return other.state() == QAbstractSocket::UnconnectedState; }));
    QTcpSocket again;
    ASSERT_TRUE(connect_to(again, closing));
    EXPECT_EQ(say(again, "AT I\r"), "ELM327 v1.5\r\r>");
}

TEST(tcp_server_test, pieces_of_a_reply_travel_apart) {
    tcp_adapter_server server(load_car("can11"), at_once({{fault_kind::split_prompt, 60}}));
    ASSERT_TRUE(server.listen("127.0.0.1", 0));
    QTcpSocket client;
    ASSERT_TRUE(connect_to(client, server));
    client.write("AT I\r");
    ASSERT_TRUE(QTest::qWaitFor([&] { return client.bytesAvailable() > 0; }));
    EXPECT_FALSE(client.readAll().contains('>'));
    ASSERT_TRUE(QTest::qWaitFor([&] { return client.bytesAvailable() > 0; }));
    EXPECT_EQ(client.readAll(), ">");
}

TEST(tcp_server_test, a_port_or_address_that_cannot_be_had_is_said) {
    tcp_adapter_server first(load_car("can11")), second(load_car("can11"));
    ASSERT_TRUE(first.listen("127.0.0.1", 0));
    EXPECT_FALSE(second.listen("127.0.0.1", first.port()));
    EXPECT_FALSE(second.error().empty());
    EXPECT_FALSE(second.listen("not an address", 0));
    EXPECT_FALSE(second.listen("127.0.0.1", 70000));
}

} // namespace

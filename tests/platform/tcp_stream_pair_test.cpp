// The real socket against a real server on loopback.
#include "qt_run_loop.h"
#include "tcp_stream_pair.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

class tcp_pair : public testing::TestWithParam<const char*> {
  protected:
    void SetUp() override {
        if (!server.listen(QHostAddress(QLatin1String(GetParam()))))
            GTEST_SKIP() << GetParam() << " is not there on this machine";
        pair = std::make_unique<tcp_stream_pair>(loop, GetParam(), server.serverPort());
    }

    void open() {
        pair->open([this](stream_side, int code) {
            codes.push_back(code);
            if (code == STREAM_BYTES_AVAILABLE)
                chunks.push_back(pair->read(1024));
        });
        EXPECT_TRUE(codes.empty()) << "an event from inside open";
    }
    void open_and_accept() {
        open();
        ASSERT_TRUE(QTest::qWaitFor([this] {
            return count(STREAM_OPEN_COMPLETED) == 2 && server.hasPendingConnections();
        }));
        peer.reset(server.nextPendingConnection());
    }
    long count(int code) const { return std::ranges::count(codes, code); }
    std::string all() const {
        std::string text;
        for (const std::string& chunk : chunks)
            text += chunk;
        return text;
    }

    qt_run_loop loop;
    QTcpServer server;
    std::unique_ptr<QTcpSocket> peer;
    std::unique_ptr<tcp_stream_pair> pair;
    std::vector<int> codes;
    std::vector<std::string> chunks;
};

TEST_P(tcp_pair, both_sides_report_open_and_bytes_go_both_ways) {
    open_and_accept();
    pair->write("AT Z\r");
    ASSERT_TRUE(QTest::qWaitFor([this] { return peer->bytesAvailable() == 5; }));
    EXPECT_EQ(peer->readAll(), "AT Z\r");
    peer->write("OK\r\r>");
    ASSERT_TRUE(QTest::qWaitFor([this] { return all() == "OK\r\r>"; }));
}

TEST_P(tcp_pair, a_long_reply_comes_in_reads_of_at_most_1024_bytes_and_the_end_comes_last) {
    open_and_accept();
    peer->write(QByteArray(3000, 'x'));
    peer->flush();
    peer->disconnectFromHost();
    ASSERT_TRUE(QTest::qWaitFor([this] { return count(STREAM_END) == 1; }));
    EXPECT_EQ(all().size(), 3000u);
    EXPECT_GE(chunks.size(), 3u);
    for (const std::string& chunk : chunks)
        EXPECT_LE(chunk.size(), 1024u);
    EXPECT_EQ(codes.back(), STREAM_END);
    EXPECT_EQ(count(STREAM_ERROR), 0);
    pair->write("dropped"); // to a closed pair: no event, no warning
}

TEST_P(tcp_pair, our_own_close_raises_no_event) {
    open_and_accept();
    codes.clear();
    peer->write("late\r>");
    peer->flush();
    pair->close();
    EXPECT_TRUE(
        QTest::qWaitFor([this] { return peer->state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_TRUE(codes.empty());
    pair->write("dropped");
}

TEST_P(tcp_pair, a_refused_connection_is_an_error_with_words) {
    server.close();
    open();
    ASSERT_TRUE(QTest::qWaitFor([this] { return count(STREAM_ERROR) == 1; }));
    EXPECT_FALSE(pair->error_description().empty());
}

INSTANTIATE_TEST_SUITE_P(families, tcp_pair, testing::Values("127.0.0.1", "::1"),
                         [](const auto& address) {
                             return std::string(address.index ? "ipv6" : "ipv4");
                         });

TEST(tcp_pair_address, ports_outside_the_range_and_unknown_names_end_in_the_error_event) {
    const std::pair<std::string, long> addresses[] = {{"127.0.0.1", -1},
                                                      {"127.0.0.1", 65536},
                                                      {"127.0.0.1", 0},
                                                      {"no-such-host.invalid", 35000},
                                                      {"", 35000}};
    for (const auto& [host, port] : addresses) {
        SCOPED_TRACE(host + ":" + std::to_string(port));
        qt_run_loop loop;
        tcp_stream_pair pair(loop, host, port);
        int error_events = 0;
        pair.open([&](stream_side, int code) { error_events += code == STREAM_ERROR; });
        EXPECT_TRUE(QTest::qWaitFor([&] { return error_events == 1; }, 20'000));
        EXPECT_FALSE(pair.error_description().empty());
    }
}

} // namespace

#include "conversation_recorder.h"
#include "full_disk.h"
#include "recorded_doors.h"
#include "scripted_serial_port.h"
#include "scripted_stream_pair.h"
#include "virtual_run_loop.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class conversation_recorder_test : public testing::Test {
  protected:
    // What was recorded, without the header.
    std::string recorded() const {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        file.readLine();
        return file.readAll().toStdString();
    }
    std::optional<std::string> start() {
        loop.advance(run_loop::milliseconds(5)); // times are counted from here
        return recorder.start(path.toStdString(), "1", "wifi");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("talk.jsonl"));
    virtual_run_loop loop;
    conversation_recorder recorder{loop};
};

TEST_F(conversation_recorder_test, a_tcp_conversation_is_written_as_it_happens) {
    ASSERT_EQ(start(), std::nullopt);
    const auto wire = std::make_shared<scripted_stream_pair::wire>();
    wire->error = "gone";
    const auto make =
        recorded_streams([&](const std::string&,
                             long) { return std::make_unique<scripted_stream_pair>(loop, wire); },
                         recorder, "wifi");
    auto pair = make("host", 1);
    std::string read;
    pair->open([&](stream_side side, int code) {
        if (code == STREAM_BYTES_AVAILABLE)
            read += pair->read(1024);
        if (code == STREAM_END && side == stream_side::input)
            pair.reset(); // as when another one is opened
    });
    pair->write("early\r");
    for (const stream_side side : {stream_side::input, stream_side::output})
        scripted_stream_pair::raise(*wire, loop, STREAM_OPEN_COMPLETED, side);
    loop.advance(run_loop::milliseconds(7));
    pair->write("01 0C\r");
    wire->incoming = std::string("\"\\\0\xE4\x7F>\n", 7);
    scripted_stream_pair::raise(*wire, loop, STREAM_BYTES_AVAILABLE);
    loop.settle();
    EXPECT_EQ(read.size(), 7u);
    scripted_stream_pair::raise(*wire, loop, STREAM_ERROR);
    loop.settle();
    pair->write("late\r");
    scripted_stream_pair::raise(*wire, loop, STREAM_END);
    loop.settle();
    EXPECT_EQ(wire->written.size(), 3u);
    EXPECT_EQ(recorded(), R"({"ms":0,"event":"connecting","over":"wifi"}
{"ms":0,"unsent":"early\r"}
{"ms":0,"event":"open"}
{"ms":7,"sent":"01 0C\r"}
{"ms":7,"received":"\"\\\u0000\u00e4\u007f>\n"}
{"ms":7,"event":"error","text":"gone"}
{"ms":7,"unsent":"late\r"}
{"ms":7,"event":"end"}
{"ms":7,"event":"closed"}
)");
}

TEST_F(conversation_recorder_test, a_bluetooth_conversation_is_written_as_it_happens) {
    ASSERT_EQ(start(), std::nullopt);
    scripted_serial_port script(loop);
    const auto door = recorded_serial_port(script, recorder);
    std::string told;
    rfcomm_channel_delegate callbacks{[&](int status) { told += std::to_string(status); },
                                      [&](std::string_view data) { told += data; },
                                      [&] { told += "closed"; }};
    const auto chooser = door->deviceSelector();
    ASSERT_EQ(chooser->runModal(), SELECTOR_SUCCESS);
    std::shared_ptr<rfcomm_channel> channel;
    script.write_error = 5;
    EXPECT_EQ(chooser->getResults().front()->openRFCOMMChannelAsync(channel, 7, callbacks), 0);
    EXPECT_EQ(channel->writeSync("AT Z\r"), 5);
    script.write_error = 0;
    script.open_completes();
    loop.settle();
    EXPECT_EQ(channel->writeSync(std::string_view("AT Z\r\0", 6)), 0);
    script.receive(">");
    script.drop();
    loop.settle();
    EXPECT_EQ(told, "0>closed");
    EXPECT_EQ(recorded(), R"({"ms":0,"event":"connecting","over":"bluetooth"}
{"ms":0,"unsent":"AT Z\r"}
{"ms":0,"event":"open"}
{"ms":0,"sent":"AT Z\r\u0000"}
{"ms":0,"received":">"}
{"ms":0,"event":"end"}
)");
}

TEST_F(conversation_recorder_test, a_full_disk_is_told_once_and_leaves_whole_lines) {
    ASSERT_EQ(start(), std::nullopt);
    int told = 0;
    recorder.stopped = [&](const std::string& why) { told += why.empty() ? 100 : 1; };
    const full_disk disk(300);
    for (int i = 0; i < 20; ++i)
        recorder.sent("01 0C\r");
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(recorded().ends_with("{\"ms\":0,\"sent\":\"01 0C\\r\"}\n"));
}

} // namespace

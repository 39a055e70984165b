// The stream pair over a serial line that does what a test says.
#include "bundle.h"
#include "serial_stream_pair.h"
#include "virtual_run_loop.h"

#include <QTemporaryDir>

#include <filesystem>
#include <fstream>
#include <grp.h>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;
using namespace std::string_literals;

struct far_end {
    serial_failure refusal, gone;
    long adapter_speed = 0;                 // where one answers
    std::string answer = "?\r\r>", only_to; // empty: to all
    std::vector<long> speeds;
    std::string asked, incoming;
    int closes = 0;
    serial_line::listener told;
};

class scripted_serial_line final : public serial_line {
  public:
    explicit scripted_serial_line(far_end& script) : script_(script) {}
    serial_failure open(const std::string&, listener told) override {
        script_.told = std::move(told);
        return script_.refusal;
    }
    bool set_speed(long baud) override {
        script_.speeds.push_back(baud);
        return true;
    }
    std::string read(std::size_t most) override {
        const std::string piece = script_.incoming.substr(0, most);
        script_.incoming.erase(0, most);
        return piece;
    }
    bool more_to_read() const override { return !script_.incoming.empty(); }
    void write(std::string_view bytes) override {
        script_.asked += bytes;
        if (script_.speeds.back() == script_.adapter_speed &&
            (script_.only_to.empty() || script_.only_to == bytes))
            script_.incoming += script_.answer;
    }
    void close() override { ++script_.closes; }
    serial_failure why_gone() const override { return script_.gone; }

  private:
    far_end& script_;
};

class serial_pair : public testing::Test {
  protected:
    void open(long speed = 0) {
        pair = std::make_unique<serial_stream_pair>(
            loop, texts, std::make_unique<scripted_serial_line>(script), "/dev/ttyUSB0", speed);
        pair->open([this](stream_side, int code) { codes.push_back(code); });
        EXPECT_TRUE(codes.empty()) << "an event from inside open";
    }
    // Time passes until something has come of it.
    milliseconds wait() {
        const milliseconds begun = loop.now();
        while (codes.empty() && loop.now() - begun < std::chrono::minutes(1)) {
            if (!script.incoming.empty())
                script.told.readable();
            loop.advance(milliseconds(10));
        }
        return loop.now() - begun;
    }
    bool opens() {
        wait();
        return codes ==
               std::vector{STREAM_OPEN_COMPLETED, STREAM_OPEN_COMPLETED, STREAM_SPACE_AVAILABLE};
    }

    bundle texts{":/kestrom", "en"};
    virtual_run_loop loop;
    far_end script;
    std::unique_ptr<serial_stream_pair> pair;
    std::vector<int> codes;
};

TEST_F(serial_pair, says_in_each_language_what_to_do_about_a_port_that_cannot_be_opened) {
    const struct {
        serial_failure why;
        const char* part;
    } rows[] = {
        {{serial_problem::not_there}, "/dev/ttyUSB0"},
        {{serial_problem::taken}, "sudo apt remove brltty"},
        {{serial_problem::not_permitted, "dialout"}, "sudo usermod -a -G dialout $USER"},
        {{serial_problem::busy}, "ModemManager"},
        {{serial_problem::silent, "38400"}, "38400"},
        {{serial_problem::other, "Input/output error"}, "Input/output error"},
    };
    for (const auto& row : rows) {
        for (const char* language : {"en", "de", "fr", "es"}) {
            const std::string text =
                problem_text(row.why, bundle(":/kestrom", language), "/dev/ttyUSB0");
            EXPECT_TRUE(text.find("/dev/ttyUSB0") != std::string::npos &&
                        text.find(row.part) != std::string::npos)
                << language << ": " << text;
        }
        script.refusal = row.why;
        codes.clear();
        open();
        loop.settle();
        EXPECT_EQ(codes, std::vector{STREAM_ERROR});
        EXPECT_EQ(pair->error_description(), problem_text(row.why, texts, "/dev/ttyUSB0"));
    }
}

TEST_F(serial_pair, tries_the_usual_speeds_in_order_and_not_for_ever_where_nobody_answers) {
    open();
    EXPECT_LT(wait(), std::chrono::seconds(10));
    EXPECT_EQ(codes, std::vector{STREAM_ERROR});
    EXPECT_EQ(script.speeds, (std::vector<long>{38400, 9600, 115200, 230400, 500000}));
    EXPECT_NE(pair->error_description().find("38400, 9600, 115200, 230400, 500000"),
              std::string::npos);
    // Half a command would be finished by a mere carriage return.
    for (std::size_t end = script.asked.find('\r'); end != std::string::npos;
         end = script.asked.find('\r', end + 1))
        EXPECT_TRUE(script.asked.substr(0, end).ends_with("\x7f\x7f") ||
                    script.asked.substr(0, end).ends_with("AT I"));
    pair->write("01 0C\r");
    EXPECT_EQ(script.asked.find("01"), std::string::npos);
}

TEST_F(serial_pair, opens_at_the_speed_at_which_an_adapter_answers) {
    const struct {
        long speed, given;
        const char* only_to;
        std::string answer;
        bool opens;
    } rows[] = {
        {38400, 0, "", "?\r\r>", true},
        {500000, 0, "", "\0\0?\r\n\r\n>\0"s, true},
        {115200, 0, "AT I\r", "ELM327 v1.5\r\r>", true}, // one that wants a real command
        {9600, 0, "", "STOPPED\r\r>", true},             // it was doing something else
        {57600, 57600, "", "\x7f\x7f\r?\r\r>", true},    // with its echo
        {9600, 38400, "", "?\r\r>", false},
        {115200, 0, "", "\xf8\x1c>", false}, // another speed's noise
        {115200, 0, "", "login: ", false},
        {115200, 0, "", std::string(9000, '>'), false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(std::to_string(row.speed) + row.answer.substr(0, 20));
        codes.clear();
        script = {};
        script.adapter_speed = row.speed;
        script.only_to = row.only_to;
        script.answer = row.answer;
        open(row.given);
        EXPECT_EQ(opens(), row.opens);
        if (row.opens) {
            EXPECT_EQ(script.speeds.back(), row.speed);
        }
        EXPECT_TRUE(row.given == 0 || script.speeds.size() == 1);
    }
}

TEST_F(serial_pair, hands_on_nothing_of_what_was_said_to_find_the_speed) {
    script.adapter_speed = 38400;
    script.answer = "?\r";
    open();
    script.told.readable();
    loop.advance(milliseconds(450));
    // Late, and the answer to the second question after it, in two pieces.
    for (const char* piece : {"\r>", "ELM327 v1.5\r", "\r>"}) {
        script.incoming = piece;
        script.told.readable();
        loop.advance(milliseconds(90));
        EXPECT_TRUE(codes.empty()) << piece;
    }
    EXPECT_TRUE(opens());
    EXPECT_EQ(pair->read(1024), "");
}

TEST_F(serial_pair, gives_what_came_before_the_end_in_reads_and_then_the_end) {
    script.adapter_speed = 38400;
    for (const bool announced : {true, false}) {
        codes.clear();
        open();
        ASSERT_TRUE(opens());
        codes.clear();
        script.incoming = std::string(3000, 'x');
        if (announced)
            script.told.readable();
        script.told.lost();
        loop.settle();
        std::size_t received = 0;
        for (std::size_t told = 0; told < codes.size() && codes[told] != STREAM_END; ++told) {
            received += pair->read(1024).size();
            loop.settle();
        }
        EXPECT_EQ(received, 3000u);
        EXPECT_EQ(codes, (std::vector{STREAM_BYTES_AVAILABLE, STREAM_BYTES_AVAILABLE,
                                      STREAM_BYTES_AVAILABLE, STREAM_END}));
    }
    codes.clear();
    pair->close();
    script.told.lost(); // our own close raises none
    loop.settle();
    EXPECT_TRUE(codes.empty());
}

TEST_F(serial_pair, that_goes_while_it_is_tried_tells_who_has_it) {
    script.gone = {serial_problem::taken};
    open();
    loop.advance(milliseconds(700));
    script.told.lost();
    loop.advance(std::chrono::seconds(10));
    EXPECT_EQ(codes, std::vector{STREAM_ERROR});
    EXPECT_EQ(script.closes, 1);
    EXPECT_NE(pair->error_description().find("brltty"), std::string::npos);
}

TEST(serial_problem_of_a_path, is_told_by_its_file_and_by_who_drives_the_chips) {
    const QTemporaryDir scratch;
    const std::filesystem::path home = scratch.path().toStdString();
    const std::string gone = home / "ttyUSB0";
    EXPECT_EQ(problem_of_path("").problem, serial_problem::not_chosen);
    EXPECT_EQ(problem_of_path(gone, home / "none").problem, serial_problem::not_there);
    for (const char* maker : {"05ac", "1a86"}) {
        std::filesystem::create_directories(home / maker / "1-2:1.0");
        std::ofstream(home / maker / "idVendor") << maker << '\n';
        std::filesystem::create_directories(home / "usbfs");
        std::filesystem::create_directory_symlink(home / maker / "1-2:1.0", home / "usbfs" / maker);
        EXPECT_EQ(problem_of_path(gone, home / "usbfs").problem,
                  maker == "1a86"s ? serial_problem::taken : serial_problem::not_there);
    }
    std::ofstream(home / "ttyUSB0") << "";
    EXPECT_EQ(problem_of_path(gone, home / "usbfs").problem, serial_problem::none);
    const struct group* dialout = ::getgrnam("dialout");
    ASSERT_TRUE(dialout);
    const unsigned id = dialout->gr_gid;
    EXPECT_EQ(refused_by(0660, id).problem, serial_problem::not_permitted);
    EXPECT_EQ(refused_by(0660, id).detail, "dialout");
    EXPECT_EQ(refused_by(0600, id).problem, serial_problem::other) << "which would not help";
    EXPECT_EQ(refused_by(0660, 0).problem, serial_problem::other) << "nobody joins root's";
}

} // namespace

// Conversations with the adapter, as the chip's data sheet has them, one file per bus and subject:
//   car NAME / protocol NAME / fault NAME[=V]   set the scene
//   > COMMAND                                   what is typed, a carriage return behind it
//   anything else                               a line that comes back
// Blank lines and NUL bytes that come back are left out; "#" begins a comment.
#include "car_library.h"
#include "virtual_adapter.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace {

using std::chrono::milliseconds;

struct exchange {
    int line = 0;
    std::string command;
    std::string reply; // lines parted by "\n"
};

struct transcript {
    std::string car_name = "can11";
    std::string protocol;
    std::vector<fault> faults;
    std::vector<exchange> exchanges;
};

transcript read_transcript(const std::string& path) {
    transcript read;
    std::ifstream file(path);
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (line.empty() || line[0] == '#')
            continue;
        if (line.starts_with("car "))
            read.car_name = line.substr(4);
        else if (line.starts_with("protocol "))
            read.protocol = line.substr(9);
        else if (line.starts_with("fault "))
            read.faults.push_back(parse_fault(line.substr(6)));
        else if (line.starts_with("> "))
            read.exchanges.push_back({number, line.substr(2), {}});
        else if (line == ">")
            read.exchanges.push_back({number, "", {}});
        else
            read.exchanges.back().reply += line + "\n";
    }
    return read;
}

// The reply without its closing blank line and prompt; every line ends in "\n".
std::string told(virtual_adapter& adapter, const std::string& command) {
    adapter.receive(command + "\r", milliseconds(0));
    std::string text;
    while (adapter.next_output())
        text += adapter.take_output(*adapter.next_output());
    EXPECT_TRUE(text.ends_with("\r>")) << text;
    std::string lines;
    for (const char c : text.substr(0, text.size() - 2))
        if (c != '\0' && (c != '\r' || (!lines.empty() && lines.back() != '\n')))
            lines += c == '\r' ? '\n' : c;
    return lines;
}

class transcript_test : public testing::TestWithParam<std::string> {};

std::vector<std::string> transcript_files() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(KESTROM_TEST_DATA))
        if (entry.path().extension() == ".txt")
            names.push_back(entry.path().stem().string());
    return names;
}

TEST_P(transcript_test, adapter_answers_as_written) {
    const transcript written =
        read_transcript(std::string(KESTROM_TEST_DATA "/") + GetParam() + ".txt");
    ASSERT_FALSE(written.exchanges.empty());
    car the_car = load_car(written.car_name);
    if (!written.protocol.empty())
        change_protocol(the_car, *protocol_named(written.protocol));
    adapter_options options;
    options.latency = milliseconds(0);
    options.faults = fault_set(written.faults);
    virtual_adapter adapter(the_car, options);
    for (const exchange& one : written.exchanges)
        EXPECT_EQ(told(adapter, one.command), one.reply)
            << GetParam() << ".txt:" << one.line << ": " << one.command;
}

INSTANTIATE_TEST_SUITE_P(all, transcript_test, testing::ValuesIn(transcript_files()),
                         [](const auto& name) { return name.param; });

} // namespace

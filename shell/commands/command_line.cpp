#include "command_line.h"

#include "commands.h"
#include "expertCtrlr.h"
#include "mac_toolies.h"
#include "parameters.h"
#include "text.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <set>
#include <string_view>

namespace {

bool plain_ascii(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

class argument_reader {
  public:
    explicit argument_reader(std::span<const std::string> arguments) : arguments_(arguments) {}

    parsed_command_line read() {
        while (at_ < arguments_.size() && result_.error.empty())
            take(arguments_[at_++]);
        if (result_.error.empty())
            check();
        return result_;
    }

  private:
    void take(const std::string& argument) {
        // A command's own arguments may begin with anything but "--", unless it reads its own
        // options.
        if (argument == "--help" || argument == "-h")
            result_.asked.help = true;
        else if (decodes(result_.asked.command))
            result_.asked.arguments.push_back(argument);
        else if (argument.size() > 1 && argument.starts_with("--"))
            take_option(argument);
        else if (result_.asked.command.empty())
            result_.asked.command = argument;
        else
            result_.asked.arguments.push_back(argument);
    }

    void take_option(const std::string& argument) {
        cli_request& asked = result_.asked;
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        given_ =
            equals == std::string::npos ? std::nullopt : std::optional(argument.substr(equals + 1));
        if (name == "--demo") {
            asked.demo = true;
            asked.demo_car = given_.value_or("");
            given_.reset();
        } else if (name == "--adapter") {
            take_adapter(value(name));
        } else if (name == "--bluetooth") {
            take_bluetooth(value(name));
        } else if (name == "--record") {
            asked.record = value(name);
        } else if (name == "--settings") {
            asked.settings = value(name);
        } else if (name == "--screen") {
            asked.screen = value(name);
        } else if (name == "--screenshot") {
            asked.screenshot = value(name);
        } else if (name == "--timeout") {
            if (const double seconds = positive_number(name); seconds > 0)
                asked.timeout_seconds = seconds;
        } else if (name == "--seconds") {
            asked.seconds = positive_number(name);
        } else if (name == "--cycles") {
            take_cycles(value(name));
        } else if (name == "--pids") {
            take_pids(value(name));
        } else if (name == "--run") {
            asked.run = value(name);
        } else if (name == "--log") {
            asked.log = true;
        } else if (name == "--fast") {
            asked.fast = true;
        } else if (name == "--json") {
            asked.json = true;
        } else if (name == "--yes") {
            asked.yes = true;
        } else if (name == "--quit-when-shown") {
            asked.quit_when_shown = true;
        } else if (name == "--version") {
            asked.version = true;
        } else {
            fail("unknown option " + name);
        }
        if (given_)
            fail("option " + name + " takes no value");
    }

    // The option's value, behind "=" or as the next argument.
    std::string value(const std::string& name) {
        if (given_) {
            const std::string text = *given_;
            given_.reset();
            return text;
        }
        if (at_ < arguments_.size())
            return arguments_[at_++];
        fail("option " + name + " needs a value");
        return {};
    }

    // HOST:PORT; an IPv6 address stands in brackets.
    void take_adapter(const std::string& text) {
        const std::size_t colon = text.rfind(':');
        if (colon == std::string::npos || colon == 0) {
            fail("--adapter needs HOST:PORT, such as 192.168.0.10:35000");
            return;
        }
        std::string host = text.substr(0, colon);
        if (host.size() > 2 && host.front() == '[' && host.back() == ']')
            host = host.substr(1, host.size() - 2);
        else if (host.find_first_of(":[]") != std::string::npos)
            fail("--adapter needs an IPv6 address in brackets, such as [::1]:35000");
        const std::string port = text.substr(colon + 1);
        std::uint16_t number = 0;
        const auto read = std::from_chars(port.data(), port.data() + port.size(), number);
        if (read.ec != std::errc() || read.ptr != port.data() + port.size() || number == 0)
            fail("the port of --adapter is a number from 1 to 65535: '" + port + "'");
        result_.asked.adapter_host = host;
        result_.asked.adapter_port = port;
    }

    // Six pairs of hexadecimal digits, with colons or dashes between them.
    void take_bluetooth(const std::string& text) {
        constexpr std::string_view FORM = "xx:xx:xx:xx:xx:xx";
        const auto fits = [](char c, char form) {
            return form == 'x' ? std::isxdigit(static_cast<unsigned char>(c)) != 0
                               : c == ':' || c == '-';
        };
        if (!std::ranges::equal(text, FORM, fits))
            fail("--bluetooth needs an address such as 00:1D:A5:68:98:8B; see bluetooth-scan");
        result_.asked.bluetooth = text;
    }

    double positive_number(const std::string& name) {
        const std::string text = value(name);
        double seconds = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), seconds);
        if (read.ec == std::errc() && read.ptr == text.data() + text.size() && seconds > 0 &&
            seconds <= 1e6)
            return seconds;
        fail(name + " needs a number of seconds above 0");
        return 0;
    }

    void take_cycles(const std::string& text) {
        unsigned long long cycles = 0;
        const auto read = std::from_chars(text.data(), text.data() + text.size(), cycles);
        if (read.ec != std::errc() || read.ptr != text.data() + text.size() || cycles == 0)
            fail("--cycles needs a number above 0");
        result_.asked.cycles = cycles;
    }

    // Two hex digits each, separated by commas, or "all".
    void take_pids(const std::string& text) {
        if (text == "all") {
            result_.asked.all_pids = true;
            return;
        }
        for (const std::string_view part : split(text, ",")) {
            std::string pid(part);
            std::ranges::transform(pid, pid.begin(),
                                   [](unsigned char c) { return std::toupper(c); });
            if (pid.size() != 2 || !is_hex(pid))
                fail("--pids needs two hex digits for each parameter, such as 0D,0C, or all");
            else if (!is_decoded(mac_toolies::convertStr2Byte(pid)))
                fail("--pids: " + pid + " is no parameter that is decoded");
            result_.asked.pids.push_back(pid);
        }
    }

    void check() {
        const cli_request& asked = result_.asked;
        const command_row* command = find_command(asked.command);
        if (!asked.command.empty() && !command)
            fail("unknown command " + asked.command);
        if (asked.help || asked.version)
            return;
        static const std::set<std::string, std::less<>> SCREENS{"", "codes", "live", "prefs",
                                                                "expert"};
        if (!SCREENS.contains(asked.screen))
            fail("--screen is one of codes, live, prefs, expert");
        if (asked.demo + asked.adapter_host.has_value() + asked.bluetooth.has_value() > 1)
            fail("--demo, --adapter and --bluetooth exclude each other");
        if (asked.command.empty()) {
            if (asked.json)
                fail("--json needs a command");
            return;
        }
        if (!command)
            return;
        if (asked.arguments.size() < command->least)
            fail("command " + asked.command + " needs an argument");
        else if (asked.arguments.size() > command->most)
            fail("command " + asked.command + " takes no argument " +
                 asked.arguments[command->most]);
        if (asked.json && command->far_end == talks_to::nobody)
            result_.asked.arguments.push_back("--json"); // it reads its own options
        if (asked.record && command->far_end != talks_to::car)
            fail("command " + asked.command + " talks to no adapter: there is nothing to record");
        if (asked.command != "live" &&
            (!asked.pids.empty() || asked.all_pids || asked.log || asked.fast || asked.run != "log" ||
             asked.seconds > 0 || asked.cycles > 0))
            fail("--pids, --run, --seconds, --cycles, --log and --fast belong to the command live");
        if (asked.yes && asked.command != "clear")
            fail("--yes belongs to the command clear");
        if (asked.seconds > 0 && asked.cycles > 0)
            fail("--seconds and --cycles exclude each other");
        static const std::set<std::string, std::less<>> RUNS{"log", "fuel", "o2", "boost"};
        if (!RUNS.contains(asked.run))
            fail("--run is one of log, fuel, o2, boost");
        else if ((!asked.pids.empty() || asked.all_pids) && asked.run != "log")
            fail("--pids goes with --run log; the other runs have parameters of their own");
        if (asked.command == "clear" && !asked.yes)
            fail("clear erases codes and test results in the car: repeat it with --yes");
        if (asked.command == "send")
            for (const std::string& text : asked.arguments)
                if (text.empty() || text.size() > LONGEST_CONSOLE_COMMAND || !plain_ascii(text))
                    fail("a command is 1 to 38 plain characters: '" + text + "'");
    }

    void fail(std::string why) {
        if (result_.error.empty())
            result_.error = std::move(why);
    }

    std::span<const std::string> arguments_;
    std::size_t at_ = 0;
    std::optional<std::string> given_;
    parsed_command_line result_;
};

} // namespace

bool decodes(std::string_view command) {
    const command_row* found = find_command(command);
    return found && found->far_end == talks_to::nobody;
}

parsed_command_line parse_command_line(std::span<const std::string> arguments) {
    return argument_reader(arguments).read();
}

// kestrom-virtual-car: a car and its adapter on a TCP port or on standard input and output.
#include "car_library.h"
#include "pseudo_terminal.h"
#include "recorded_adapter.h"
#include "stdio_adapter.h"
#include "tcp_adapter_server.h"
#include "virtual_adapter.h"
#include "virtual_car_options.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <iostream>
#include <memory>
#include <system_error>
#include <unistd.h>

namespace {

constexpr int FAILED = 1;
constexpr int BAD_USAGE = 2;

void print_list() {
    std::printf("Cars:\n");
    for (const std::string& name : car_names()) {
        const car one = load_car(name);
        std::printf("  %-18s %s; %s\n", name.c_str(), one.title.c_str(),
                    std::string(protocol_description(one.protocol)).c_str());
    }
    std::printf("\nProtocols:\n");
    for (const bus_protocol& protocol : bus_protocols())
        std::printf("  %-18s %s\n", std::string(protocol.name).c_str(),
                    std::string(protocol.description).c_str());
    std::printf("\nFaults:\n");
    for (const fault_row& row : fault_rows()) {
        std::string name(row.name);
        if (!row.value_name.empty())
            name += row.value ? "[=" + std::string(row.value_name) + "]"
                              : "=" + std::string(row.value_name);
        std::printf("  %-24s %s%s\n", name.c_str(), std::string(row.effect).c_str(),
                    row.value && !row.value_name.empty()
                        ? (" (" + std::to_string(*row.value) + ")").c_str()
                        : "");
    }
}

int serve_tcp(QCoreApplication& app, const virtual_car_options& options, const std::string& title,
              std::unique_ptr<adapter> served) {
    tcp_adapter_server server(std::move(served));
    if (!server.listen(options.address, options.port)) {
        std::cerr << "kestrom-virtual-car: cannot listen on " << options.address << " port "
                  << options.port << ": " << server.error() << "\n";
        return FAILED;
    }
    const bool ipv6 = options.address.find(':') != std::string::npos;
    std::cout << title << ": listening on "
              << (ipv6 ? "[" + options.address + "]" : options.address) << ":" << server.port()
              << std::endl;
    return app.exec();
}

int serve_terminal(const std::string& title, adapter& served) {
    const pseudo_terminal terminal;
    std::cout << title << ": on " << terminal.path() << std::endl;
    return serve_descriptors(served, terminal.descriptor(), terminal.descriptor()) ? 0 : FAILED;
}

int serve(QCoreApplication& app, const virtual_car_options& options, const std::string& title,
          std::unique_ptr<adapter> served) {
    if (options.pty)
        return serve_terminal(title, *served);
    if (!options.stdio)
        return serve_tcp(app, options, title, std::move(served));
    return serve_descriptors(*served, STDIN_FILENO, STDOUT_FILENO) ? 0 : FAILED;
}

int run(QCoreApplication& app, std::span<const std::string> arguments) {
    const virtual_car_options options = read_options(arguments);
    if (options.help) {
        std::cout << usage();
        return 0;
    }
    if (options.list) {
        print_list();
        return 0;
    }
    if (options.version) {
        std::cout << "kestrom-virtual-car " KESTROM_VERSION "\n";
        return 0;
    }
    if (!options.replay.empty())
        return serve(app, options, options.replay,
                     std::make_unique<recorded_adapter>(load_recording(options.replay),
                                                        options.adapter.timing,
                                                        options.adapter.latency));
    car the_car = load_car(options.car);
    if (!options.protocol.empty())
        change_protocol(the_car, *protocol_named(options.protocol));
    return serve(app, options, the_car.title,
                 std::make_unique<virtual_adapter>(the_car, options.adapter));
}

} // namespace

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN);
    QCoreApplication app(argc, argv);
    try {
        return run(app, std::vector<std::string>(argv + 1, argv + argc));
    } catch (const usage_error& error) {
        std::cerr << "kestrom-virtual-car: " << error.what()
                  << "\nTry 'kestrom-virtual-car --help'.\n";
    } catch (const car_file_error& error) {
        std::cerr << error.what() << "\n";
    } catch (const recording_error& error) {
        std::cerr << error.what() << "\n";
    } catch (const std::system_error& error) {
        std::cerr << "kestrom-virtual-car: " << error.what() << "\n";
        return FAILED;
    }
    return BAD_USAGE;
}

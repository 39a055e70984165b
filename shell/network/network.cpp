#include "network.h"

#include "run_loop.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibrary>

#include <stdexcept>

namespace {

// In the build folder, and as installed.
constexpr const char* PLACES[] = {"/kestrom-network.so",
                                  "/" KESTROM_PRIVATE_LIBRARIES "/kestrom-network.so"};

QString path_of_library() {
    const QString folder = QCoreApplication::applicationDirPath();
    for (const char* place : PLACES)
        if (QString path = folder + QLatin1String(place); QFile::exists(path))
            return path;
    return folder + QLatin1String(PLACES[1]);
}

network* load() {
    QLibrary library(path_of_library()); // stays loaded
    const auto entry = reinterpret_cast<network* (*)()>(library.resolve("kestrom_network"));
    if (!entry)
        throw std::runtime_error("no TCP: " + library.errorString().toStdString());
    return entry();
}

class failing_pair final : public stream_pair {
  public:
    failing_pair(run_loop& loop, std::string why) : loop_(loop), why_(std::move(why)) {}
    ~failing_pair() override { loop_.cancel(event_); }

    void open(event_handler handler) override {
        event_ = loop_.after(run_loop::milliseconds(0), [handler = std::move(handler)] {
            handler(stream_side::input, STREAM_ERROR);
        });
    }
    std::string read(std::size_t) override { return {}; }
    void write(std::string_view) override {}
    void close() override { loop_.cancel(event_); }
    std::string error_description() const override { return why_; }

  private:
    run_loop& loop_;
    std::string why_;
    run_loop::timer_id event_ = 0;
};

} // namespace

network& load_network() {
    static network* const loaded = load();
    return *loaded;
}

stream_pair_factory tcp_streams(run_loop& loop) {
    return [&loop](const std::string& host, long port) -> std::unique_ptr<stream_pair> {
        try {
            return load_network().make_streams(loop, host, port);
        } catch (const std::runtime_error& failure) {
            return std::make_unique<failing_pair>(loop, failure.what());
        }
    };
}

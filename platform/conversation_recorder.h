// Records the conversation with the adapter, to be examined or replayed elsewhere
// (docs/json/recording.schema.json). Owned by main; outlives the doors that it records.
//
// Lines of JSON: a header, then what was sent and received, and the events of the connection. Bytes
// are the characters U+0000 to U+00FF, so that nothing is lost and the file is plain ASCII. When a
// call returns, its line is complete in the file, whatever ends the program.
#pragma once

#include "log_file.h"
#include "run_loop.h"

#include <functional>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

class conversation_recorder {
  public:
    explicit conversation_recorder(const run_loop& loop) : loop_(loop), started_(loop.now()) {}

    // Creates the file, which must not exist yet, with its header; times count from now. `adapter`
    // is "demo", "wifi", "serial" or "bluetooth". Returns the reason of failure.
    std::optional<std::string> start(const std::string& path, const std::string& version,
                                     std::string_view adapter);

    void sent(std::string_view bytes) { note("sent", bytes); }
    // Not sent: there was no connection, or it did not accept them.
    void unsent(std::string_view bytes) { note("unsent", bytes); }
    void received(std::string_view bytes) { note("received", bytes); }
    // `over` is "wifi", "serial" or "bluetooth".
    void connecting(std::string_view over) { event("connecting", "over", over); }
    void opened() { event("open"); }
    void ended() { event("end"); } // by the far end
    void closed() { event("closed"); }
    void failed(std::string_view why) { event("error", "text", why); }

    // Called once, with the reason, when recording stops.
    std::function<void(const std::string& why)> stopped;

  private:
    void note(std::string_view key, std::string_view bytes);
    void event(std::string_view what, std::string_view key = {}, std::string_view text = {});
    void append(const nlohmann::ordered_json& members);

    const run_loop& loop_;
    run_loop::milliseconds started_;
    log_file file_;
};

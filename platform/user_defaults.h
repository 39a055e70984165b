// The per-user settings store: typed values under text keys, kept in memory and written to a .conf
// file by synchronize(). Owned by the start-up code; tests give each a temporary file. Reads are
// cheap enough for a hot path.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

class user_defaults {
  public:
    // Reads `path`; a missing file is an empty store.
    explicit user_defaults(std::string path);
    // The current user's store.
    static std::string default_path();

    bool contains(std::string_view key) const;
    int integer(std::string_view key) const;        // absent or not a number: 0
    bool boolean(std::string_view key) const;       // absent: false
    std::string string(std::string_view key) const; // absent: empty
    // Absent and empty are different.
    std::optional<std::vector<std::string>> string_array(std::string_view key) const;

    void set_integer(std::string_view key, int value);
    void set_boolean(std::string_view key, bool value);
    void set_string(std::string_view key, std::string_view value);
    void set_string_array(std::string_view key, std::vector<std::string> values);

    // Writes the file atomically. False, with a logged warning, if that fails.
    bool synchronize();
    const std::string& path() const { return path_; }

  private:
    using setting = std::variant<std::string, std::vector<std::string>>;
    void load();

    std::string path_;
    std::map<std::string, setting, std::less<>> values_;
    // The setting that decoding reads for every reply is cached.
    mutable std::map<std::string, bool, std::less<>> booleans_;
};

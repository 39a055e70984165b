// JSON whose values know their lines, so that a mistake in a car file can be reported by file and
// line.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

struct json_value {
    enum class kind { null, boolean, number, text, list, object };

    kind type = kind::null;
    int line = 0;
    bool boolean = false;
    double number = 0;
    std::string text;
    std::vector<json_value> list;
    std::map<std::string, json_value, std::less<>> object;

    // The member of an object, or null.
    const json_value* find(std::string_view name) const;
};

class json_error : public std::runtime_error {
  public:
    json_error(int line, const std::string& reason) : std::runtime_error(reason), line_(line) {}
    int line() const { return line_; }

  private:
    int line_;
};

// Throws json_error, also for a duplicate name in one object.
json_value parse_json(std::string_view text);

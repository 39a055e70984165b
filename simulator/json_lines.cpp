#include "json_lines.h"

#include <iterator>
#include <nlohmann/json.hpp>

namespace {

constexpr std::size_t DEEPEST = 64;

struct place {
    int line = 1;
    char last = 0;
};

// Feeds the parser character by character and counts the lines. The parser reads one character past
// a number, so a line end counts only once something after it has been read.
class counting_iterator {
  public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    counting_iterator(const char* at, place* where) : at_(at), where_(where) {}
    reference operator*() const { return *at_; }
    counting_iterator& operator++() {
        if (where_->last == '\n')
            ++where_->line;
        where_->last = *at_++;
        return *this;
    }
    counting_iterator operator++(int) {
        counting_iterator before = *this;
        ++*this;
        return before;
    }
    bool operator==(const counting_iterator& other) const { return at_ == other.at_; }
    bool operator!=(const counting_iterator& other) const { return at_ != other.at_; }

  private:
    const char* at_;
    place* where_;
};

// The library's message without its own position and without the text read so far.
std::string reason_of(std::string text) {
    if (const std::size_t start = text.find("syntax error"); start != std::string::npos)
        text.erase(0, start);
    const std::size_t read = text.find("; last read");
    const std::size_t expected = text.rfind("; expected");
    if (read != std::string::npos)
        text.erase(read, expected > read && expected != std::string::npos ? expected - read
                                                                          : std::string::npos);
    return text;
}

// Builds the tree from the parser's events.
class tree_builder : public nlohmann::json_sax<nlohmann::json> {
  public:
    explicit tree_builder(const place& where) : where_(where) {}

    json_value take_root() { return std::move(root_); }

    bool null() override { return add(fresh(json_value::kind::null)); }
    bool boolean(bool value) override {
        json_value made = fresh(json_value::kind::boolean);
        made.boolean = value;
        return add(std::move(made));
    }
    bool number_integer(number_integer_t value) override {
        return add_number(static_cast<double>(value));
    }
    bool number_unsigned(number_unsigned_t value) override {
        return add_number(static_cast<double>(value));
    }
    bool number_float(number_float_t value, const string_t&) override { return add_number(value); }
    bool string(string_t& value) override {
        json_value made = fresh(json_value::kind::text);
        made.text = value;
        return add(std::move(made));
    }
    bool binary(binary_t&) override { return false; }
    bool start_object(std::size_t) override { return open(json_value::kind::object); }
    bool start_array(std::size_t) override { return open(json_value::kind::list); }
    bool end_object() override { return close(); }
    bool end_array() override { return close(); }
    bool key(string_t& name) override {
        if (open_.back().value.object.count(name))
            throw json_error(where_.line, "\"" + name + "\" stands twice");
        open_.back().next_name = name;
        return true;
    }
    bool parse_error(std::size_t, const std::string&,
                     const nlohmann::json::exception& problem) override {
        throw json_error(where_.line, reason_of(problem.what()));
    }

  private:
    struct level {
        json_value value;
        std::string next_name;
    };

    json_value fresh(json_value::kind kind) const {
        json_value made;
        made.type = kind;
        made.line = where_.line;
        return made;
    }
    bool add_number(double value) {
        json_value made = fresh(json_value::kind::number);
        made.number = value;
        return add(std::move(made));
    }
    bool open(json_value::kind kind) {
        if (open_.size() == DEEPEST)
            throw json_error(where_.line, "is nested too deeply");
        open_.push_back({fresh(kind), {}});
        return true;
    }
    bool close() {
        json_value done = std::move(open_.back().value);
        open_.pop_back();
        return add(std::move(done));
    }
    bool add(json_value value) {
        if (open_.empty())
            root_ = std::move(value);
        else if (open_.back().value.type == json_value::kind::list)
            open_.back().value.list.push_back(std::move(value));
        else
            open_.back().value.object.emplace(std::move(open_.back().next_name), std::move(value));
        return true;
    }

    const place& where_;
    std::vector<level> open_;
    json_value root_;
};

} // namespace

const json_value* json_value::find(std::string_view name) const {
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &found->second;
}

json_value parse_json(std::string_view text) {
    place where;
    tree_builder builder(where);
    nlohmann::json::sax_parse(counting_iterator(text.data(), &where),
                              counting_iterator(text.data() + text.size(), &where), &builder);
    return builder.take_root();
}

// A table of texts by key, parsed once from lines of text, then read only. It owns that text and
// points into it, so that a line costs no allocation; copies share it.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class text_dictionary {
  public:
    // Key and text; both live as long as the dictionary.
    using entry = std::pair<std::string_view, std::string_view>;
    using const_iterator = std::vector<entry>::const_iterator;

    text_dictionary() = default;
    // A key is the part of a line before its first `delimiter`, trimmed; its text is the rest of
    // the line, delimiter included. The first line without delimiter ends the table; a later line
    // with the same key replaces the earlier one.
    text_dictionary(std::string lines, std::string_view delimiter);

    const_iterator find(std::string_view key) const;          // end() if absent
    const_iterator begin() const { return entries_.begin(); } // in the byte order of the keys
    const_iterator end() const { return entries_.end(); }
    bool empty() const { return entries_.empty(); }
    std::size_t size() const { return entries_.size(); }

  private:
    void put_in_order();

    std::shared_ptr<const std::string> lines_;
    std::vector<entry> entries_;
};

// One row of a table as text: fields separated by commas, quoted where necessary.
#pragma once

#include <string>
#include <string_view>

class csv_row {
  public:
    void add(std::string_view field) {
        if (count_++ > 0)
            text_ += ',';
        if (field.find_first_of(",\"\n") == field.npos) {
            text_ += field;
            return;
        }
        text_ += '"';
        for (const char c : field)
            text_.append(c == '"' ? 2 : 1, c);
        text_ += '"';
    }
    // Without line end.
    const std::string& text() const { return text_; }

  private:
    std::string text_;
    std::size_t count_ = 0;
};

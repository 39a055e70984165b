// Text from outside as a widget or a terminal may show it.
#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 to QString; bytes that are not UTF-8 become replacement characters; control characters
// other than tabs and line ends, which become "\n", blanks, and so does what turns the direction of
// a text. The widget must show it as plain text.
QString display_text(std::string_view text);

// The same for a terminal, which an adapter's bytes must not drive; and as one line.
std::string printable(std::string_view text);
std::string printable_line(std::string_view text);

// How many bytes at the end begin a letter that is not all there: what comes next may finish it.
std::size_t unfinished_letter(std::string_view text);

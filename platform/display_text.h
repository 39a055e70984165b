// Makes text from outside safe for a widget or a terminal.
#pragma once

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8 to QString; bytes that are not UTF-8 become replacement characters; line ends become "\n";
// other control characters except tabs become blanks, as do direction overrides. The widget must
// show it as plain text.
QString display_text(std::string_view text);

// The same for a terminal, which an adapter's bytes must not control; and on one line.
std::string printable(std::string_view text);
std::string printable_line(std::string_view text);

// The number of bytes at the end that begin an incomplete character, which the next chunk may
// complete.
std::size_t unfinished_letter(std::string_view text);

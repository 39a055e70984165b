// Text from outside as a widget may show it.
#pragma once

#include <QString>

#include <cstddef>
#include <string_view>

// UTF-8 to QString; bytes that are not UTF-8 become replacement characters, control characters
// other than line ends blanks. The widget must show it as plain text.
QString display_text(std::string_view text);

// How many bytes at the end begin a letter that is not all there: what comes next may finish it.
std::size_t unfinished_letter(std::string_view text);

// Text from outside as a widget may show it.
#pragma once

#include <QString>

#include <string_view>

// UTF-8 to QString; bytes that are not UTF-8 become replacement characters, control characters
// other than line ends blanks. The widget must show it as plain text.
QString display_text(std::string_view text);

// The layout rules for every window and dialog, in any state, language, size and scale.
#pragma once

#include <string>
#include <vector>

class QWidget;

// One sentence for each rule that the visible widgets of `window` break:
// - what can be operated by hand has a name for a screen reader and a tooltip when it has no text;
// - no two mnemonics that are reachable at once share a letter;
// - Tab goes through the widgets from top to bottom, and from left to right in a row;
// - no text is wider or higher than its place, unless a tooltip has all of it.
std::vector<std::string> broken_layout_rules(const QWidget& window);

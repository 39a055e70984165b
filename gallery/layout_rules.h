// The layout rules for every window and dialog, in any state, language, size and scale.
#pragma once

#include <string>
#include <vector>

class QWidget;

// One sentence for each rule that the visible widgets of `window` break:
// - controls without text have an accessible name and a tooltip;
// - no two mnemonics that are available at the same time share a letter;
// - Tab goes through the widgets from top to bottom, and from left to right in a row;
// - no text is wider or higher than its place, unless a tooltip has all of it.
std::vector<std::string> broken_layout_rules(const QWidget& window);

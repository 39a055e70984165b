// Draws the parts of widgets if there is no desktop style: flat, with one corner radius, thin lines
// and the program's own check mark, in the palette's colours. Stateless.
#pragma once

#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionHeader;

namespace flat_parts {

// False for parts left to the base style.
bool draw(QStyle::PrimitiveElement part, const QStyleOption& option, QPainter& painter);
// The background of a heading: the window's, above a thin line.
void draw_heading(const QStyleOptionHeader& option, QPainter& painter);
// A closed combo box without its text.
void draw_combo_box(const QStyleOption& option, QPainter& painter);

} // namespace flat_parts

// The frame of all screens: a title row with the main buttons at the right, the content, and the
// status line with the busy indicator.
#pragma once

#include <QIcon>
#include <QString>
#include <QWidget>

#include <string>
#include <string_view>

class busy_indicator;
class Ks_lite_delegate;
class QHBoxLayout;
class QTableView;
class QVBoxLayout;
class status_line;

// The unit of spacing, in pixels.
inline constexpr int GRID = 8;

// icons/NAME.svg in the colour of the desktop's text, even after a change of scheme; sharp at every
// scale.
QIcon drawn_icon(std::string_view name);
// The colour of disabled text, still legible.
QColor unavailable_text(const QPalette& palette);
// The drawing at this path, in its own colours.
QIcon picture_icon(const QString& path);

// A text of the strings table, for a widget.
QString ui_text(Ks_lite_delegate& delegate, std::string_view key);

// Cells and headings with padding; no row numbers.
void give_room(QTableView* table);

// Makes the column just wide enough for `widest` in the table's font, with that padding.
void fit_column(QTableView* table, int column, const QString& widest);

struct screen_bones {
    QWidget* root = nullptr; // owned by the screen
    QHBoxLayout* title_row = nullptr;
    QVBoxLayout* content = nullptr;
    status_line* status = nullptr; // null for a screen without one
    busy_indicator* waity = nullptr;
};

screen_bones make_screen_bones(Ks_lite_delegate& delegate, std::string_view title_key,
                               bool with_status);

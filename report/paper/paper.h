// The report's sheet on paper: black on white, no row split between pages, with the car's number
// and "page n of m" on each.
#pragma once

#include "sheet.h"

#include <QByteArray>

class QPagedPaintDevice;

enum class paper_size { a4, letter };
inline constexpr double PAPER_MARGIN_MM = 15;

// By the user's locale.
paper_size usual_paper();

void print_sheet(QPagedPaintDevice& device, const report_sheet& sheet);

// Fonts are embedded, texts can be searched.
QByteArray sheet_pdf(const report_sheet& sheet, paper_size size);

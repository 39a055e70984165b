// A report on its way out of the program into a file of the user's choice: from the report's own
// screen, and before codes are cleared.
#pragma once

struct car_report;
struct report_sheet;
class Ks_lite_delegate;
class mac_toolies;
class QWidget;

// Of the report that was read or opened last: with the end of the VIN hidden when the user wishes.
car_report report_to_give(Ks_lite_delegate& delegate, const mac_toolies& toolies);

// Asks where to. False when the user chose nothing, or the file could not be written, which has
// been told then. A comparison is a sheet without a report of its own, so that it makes no JSON.
bool save_sheet(Ks_lite_delegate& delegate, QWidget* over, const car_report& report,
                const report_sheet& sheet, bool is_comparison);

// A report on its way out of the program into a file of the user's choice: from the report's own
// screen, and before codes are cleared.
#pragma once

struct car_report;
struct report_sheet;
class Ks_lite_delegate;
class mac_toolies;
class QWidget;

// The report last read or opened, with the end of the VIN hidden if the user wishes.
car_report report_to_give(Ks_lite_delegate& delegate, const mac_toolies& toolies);

// Asks where to. False if the user chose nothing, or the file could not be written, which has then
// been reported. A comparison has no report of its own, hence no JSON.
bool save_sheet(Ks_lite_delegate& delegate, QWidget* over, const car_report& report,
                const report_sheet& sheet, bool is_comparison);

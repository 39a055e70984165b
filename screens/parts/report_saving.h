// Saves a report to a file of the user's choice: from the report screen, and before codes are
// cleared.
#pragma once

struct car_report;
struct report_sheet;
class Ks_lite_delegate;
class mac_toolies;
class QWidget;

// The report last read or opened; with the end of the VIN hidden, if so set.
car_report report_to_export(Ks_lite_delegate& delegate, const mac_toolies& toolies);

// Asks for the file. False if the user cancelled or writing failed, which has been reported. A
// comparison has no report, hence no JSON.
bool save_sheet(Ks_lite_delegate& delegate, QWidget* over, const car_report& report,
                const report_sheet& sheet, bool is_comparison);

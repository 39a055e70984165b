// Rows of a table in the clipboard, as shown: a line each, cells separated by tabs.
#pragma once

class QAction;
class QString;
class QTableView;

// Ctrl+C and an entry of the table's menu copy the selected rows; without a selection, all.
QAction* make_rows_copyable(QTableView* table, const QString& name);

// Rows of a table in the clipboard: what its reader sees of them, a line each, cells parted by
// tabs.
#pragma once

class QAction;
class QString;
class QTableView;

// Ctrl+C and an entry of the table's menu copy the selected rows whole; without a selection all.
QAction* let_rows_be_copied(QTableView* table, const QString& name);

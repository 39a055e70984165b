#include "copied_rows.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QTableView>

namespace {

QString row_text(const QAbstractItemModel& model, int row) {
    QStringList cells;
    for (int column = 0; column < model.columnCount(); ++column)
        cells.append(model.index(row, column).data(Qt::DisplayRole).toString());
    return cells.join(u'\t');
}

void copy_rows(const QTableView& table) {
    QStringList lines;
    const QItemSelectionModel& chosen = *table.selectionModel();
    for (int row = 0; row < table.model()->rowCount(); ++row)
        if (!chosen.hasSelection() || chosen.rowIntersectsSelection(row))
            lines.append(row_text(*table.model(), row));
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(u'\n'));
}

} // namespace

QAction* make_rows_copyable(QTableView* table, const QString& name) {
    auto* copy = new QAction(name, table);
    copy->setObjectName(QStringLiteral("copyRows"));
    copy->setShortcut(QKeySequence::Copy);
    copy->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(copy, &QAction::triggered, table, [table] { copy_rows(*table); });
    table->addAction(copy);
    table->setContextMenuPolicy(Qt::ActionsContextMenu);
    return copy;
}

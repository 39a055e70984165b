// A read-only table of text for a QTableView. Column identifiers say what each column shows.
#pragma once

#include <QAbstractTableModel>
#include <QString>

#include <functional>

class rows_model final : public QAbstractTableModel {
  public:
    struct column {
        QString identifier;
        QString title;
    };
    // Text of a cell; `identifier` is the column's.
    using cell_text = std::function<QString(int row, const QString& identifier)>;

    rows_model(QList<column> columns, cell_text text, QObject* parent)
        : QAbstractTableModel(parent), columns_(std::move(columns)), text_(std::move(text)) {}

    void reload(int rows) {
        beginResetModel();
        rows_ = rows;
        endResetModel();
    }

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : rows_;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : static_cast<int>(columns_.size());
    }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role == Qt::DisplayRole || role == Qt::AccessibleTextRole)
            return text_(index.row(), columns_[index.column()].identifier);
        if (decorate && (role == Qt::FontRole || role == Qt::ForegroundRole ||
                         role == Qt::TextAlignmentRole || role == Qt::ToolTipRole))
            return decorate(index.row(), columns_[index.column()].identifier, role);
        return {};
    }
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
        if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
            return columns_[section].title;
        if (orientation == Qt::Horizontal && role == Qt::TextAlignmentRole)
            return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
        return {};
    }

    // Font, colour, alignment and tooltip of a cell, if any.
    std::function<QVariant(int row, const QString& identifier, int role)> decorate;

  private:
    QList<column> columns_;
    cell_text text_;
    int rows_ = 0;
};

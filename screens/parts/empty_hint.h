// A subdued line in the middle of an empty table that says what would fill it. Owned by the table.
#pragma once

#include <QAbstractItemView>
#include <QEvent>
#include <QLabel>

class empty_hint final : public QLabel {
  public:
    empty_hint(QAbstractItemView* table, const QString& text)
        : QLabel(text, table->viewport()), table_(table) {
        setTextFormat(Qt::PlainText);
        setAlignment(Qt::AlignCenter);
        setWordWrap(true);
        setForegroundRole(QPalette::PlaceholderText);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setContentsMargins(16, 16, 16, 16);
        table->viewport()->installEventFilter(this);
        connect(table->model(), &QAbstractItemModel::modelReset, this, [this] { follow(); });
        follow();
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Resize)
            follow();
        return false;
    }

  private:
    void follow() {
        resize(table_->viewport()->size());
        setVisible(table_->model()->rowCount() == 0);
    }
    QAbstractItemView* table_;
};

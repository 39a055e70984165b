#include "layout_rules.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QStyle>
#include <QTableView>
#include <QTextDocument>

#include <algorithm>
#include <map>

namespace {

using complaints = std::vector<std::string>;

std::string name_of(const QWidget& widget) {
    const QString name = widget.objectName();
    return std::string(widget.metaObject()->className()) + " " +
           (name.isEmpty() ? widget.property("text").toString() : name).toStdString();
}

// Visible widgets of the window, without those of windows above it.
template <class kind = QWidget>
std::vector<kind*> visible(const QWidget& window) {
    std::vector<kind*> found;
    for (kind* widget : window.findChildren<kind*>())
        if (widget->window() == &window && widget->isVisible())
            found.push_back(widget);
    return found;
}

bool is_operated(const QWidget& widget) {
    return qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) ||
           (qobject_cast<const QAbstractItemView*>(&widget) &&
            !qobject_cast<const QHeaderView*>(&widget)) ||
           (qobject_cast<const QAbstractSlider*>(&widget) &&
            !qobject_cast<const QScrollBar*>(&widget)) ||
           widget.focusPolicy() == Qt::StrongFocus;
}

void check_names(const QWidget& window, complaints& list) {
    std::map<const QWidget*, const QLabel*> buddies;
    for (const QLabel* label : visible<QLabel>(window))
        if (label->buddy())
            buddies[label->buddy()] = label;
    for (const QWidget* widget : visible(window)) {
        if (!is_operated(*widget) || widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const bool has_text = button && !button->text().isEmpty();
        if (!has_text && widget->accessibleName().isEmpty() && !buddies.contains(widget))
            list.push_back(name_of(*widget) + " has no accessible name");
        if (button && !has_text && widget->toolTip().isEmpty() &&
            !qobject_cast<const QAbstractItemView*>(widget->parentWidget()))
            list.push_back(name_of(*widget) + " has neither text nor tooltip");
    }
}

void check_mnemonics(const QWidget& window, complaints& list) {
    std::map<QChar, QString> taken;
    const auto take = [&](const QString& text) {
        const qsizetype mark =
            QString(text).replace(QLatin1String("&&"), QLatin1String("  ")).indexOf(u'&');
        if (mark < 0 || mark + 1 >= text.size())
            return;
        const auto [other, free] = taken.emplace(text[mark + 1].toLower(), text);
        if (!free)
            list.push_back("the mnemonics of " + text.toStdString() + " and " +
                           other->second.toStdString() + " are the same");
    };
    for (const QAbstractButton* button : visible<QAbstractButton>(window))
        take(button->text());
    for (const QLabel* label : visible<QLabel>(window))
        if (label->buddy())
            take(label->text());
    for (const QGroupBox* group : visible<QGroupBox>(window))
        take(group->title());
    for (const QMenuBar* bar : visible<QMenuBar>(window))
        for (const QAction* menu : bar->actions())
            take(menu->text());
}

bool takes_tab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && !widget.focusProxy() &&
           (widget.focusPolicy() & Qt::TabFocus) && !qobject_cast<const QMenuBar*>(&widget);
}

// Whether Tab may go from `a` to `b`: downwards, or to the right in the same row, or into a column
// further right.
bool in_reading_order(const QRect& a, const QRect& b) {
    return b.top() >= a.bottom() || (b.left() >= a.left() && b.bottom() > a.top()) ||
           b.left() >= a.right();
}

void check_tab_order(const QWidget& window, complaints& list) {
    const QWidget* start = nullptr;
    for (const QWidget* widget : visible(window))
        if (takes_tab(*widget) &&
            (!start || widget->mapTo(&window, QPoint()).y() < start->mapTo(&window, QPoint()).y()))
            start = widget;
    std::vector<const QWidget*> chain;
    for (const QWidget* at = window.nextInFocusChain(); at && at != &window;
         at = at->nextInFocusChain())
        if (at->window() == &window && takes_tab(*at))
            chain.push_back(at);
    const auto place = [&](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    for (std::size_t i = 1; i < chain.size(); ++i)
        if (!in_reading_order(place(chain[i - 1]), place(chain[i])))
            list.push_back("Tab goes backwards from " + name_of(*chain[i - 1]) + " to " +
                           name_of(*chain[i]));
}

void check_labels(const QWidget& window, complaints& list) {
    for (const QLabel* label : visible<QLabel>(window)) {
        if (label->text().isEmpty())
            continue;
        const QSize room = label->contentsRect().size();
        const QString text = label->buddy() ? QString(label->text()).remove(u'&') : label->text();
        const int flags = (label->wordWrap() ? Qt::TextWordWrap : 0) | Qt::TextExpandTabs;
        const QSize need =
            label->fontMetrics()
                .boundingRect(QRect(QPoint(), QSize(room.width(), 10'000)), flags, text)
                .size();
        const bool whole_in_tooltip = !label->toolTip().isEmpty();
        if (!whole_in_tooltip &&
            (need.width() > room.width() + 1 || need.height() > room.height() + 1))
            list.push_back(name_of(*label) + " needs " + std::to_string(need.width()) + " x " +
                           std::to_string(need.height()) + " and has " +
                           std::to_string(room.width()) + " x " + std::to_string(room.height()) +
                           ": " + text.toStdString());
    }
}

void check_buttons(const QWidget& window, complaints& list) {
    for (const QWidget* widget : visible(window)) {
        if (!qobject_cast<const QAbstractButton*>(widget) &&
            !qobject_cast<const QComboBox*>(widget) && !qobject_cast<const QGroupBox*>(widget))
            continue;
        if (widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const QSize need = widget->minimumSizeHint();
        if (need.width() > widget->width() || need.height() > widget->height())
            list.push_back(name_of(*widget) + " is smaller than its text");
    }
}

void check_tables(const QWidget& window, complaints& list) {
    for (const QTableView* table : visible<QTableView>(window)) {
        const QHeaderView* header = table->horizontalHeader();
        const QAbstractItemModel* model = table->model();
        for (int column = 0; column < model->columnCount(); ++column) {
            const QString title = model->headerData(column, Qt::Horizontal).toString();
            if (header->fontMetrics().horizontalAdvance(title) + 8 > header->sectionSize(column))
                list.push_back("the heading " + title.toStdString() + " does not fit");
        }
        for (int row = 0; row < model->rowCount(); ++row)
            for (int column = 0; column < model->columnCount(); ++column) {
                const QModelIndex cell = model->index(row, column);
                const QSize room = table->visualRect(cell).size();
                if (table->visualRect(cell).bottom() > table->viewport()->height())
                    continue;
                const QSize need = table->itemDelegateForIndex(cell)->sizeHint(
                    [&] {
                        QStyleOptionViewItem option;
                        option.initFrom(table);
                        option.font = table->font();
                        option.rect = QRect(QPoint(), QSize(room.width(), 10'000));
                        if (table->wordWrap())
                            option.features |= QStyleOptionViewItem::WrapText;
                        option.widget = table;
                        return option;
                    }(),
                    cell);
                if (cell.data(Qt::ToolTipRole).isValid())
                    continue;
                if (!table->wordWrap() && need.width() > room.width())
                    list.push_back("a cell is wider than its column: " +
                                   cell.data().toString().toStdString());
                else if (need.height() > room.height() + 1)
                    list.push_back("a cell is higher than its row: " +
                                   cell.data().toString().toStdString());
            }
    }
}

} // namespace

std::vector<std::string> broken_layout_rules(const QWidget& window) {
    complaints list;
    for (const auto check :
         {check_names, check_mnemonics, check_tab_order, check_labels, check_buttons, check_tables})
        check(window, list);
    std::ranges::sort(list);
    list.erase(std::ranges::unique(list).begin(), list.end());
    return list;
}

#include "chrome.h"

#include "bundle.h"
#include "busy_indicator.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "stall_hint.h"
#include "status_line.h"

#include <QFile>
#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIconEngine>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyledItemDelegate>
#include <QSvgRenderer>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

namespace {

constexpr int TITLE_ROW_HEIGHT = 6 * GRID; // the tallest control of any screen

// Renders a drawing at any size, in its own colours or in the desktop's text colour. It reads the
// file when first shown, and needs no plugin.
class drawn_icon_engine final : public QIconEngine {
  public:
    drawn_icon_engine(QString path, bool tinted) : path_(std::move(path)), tinted_(tinted) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        const double ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
        painter->drawPixmap(rect, drawn(rect.size() * ratio, mode));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        return drawn(size, mode);
    }
    QIconEngine* clone() const override { return new drawn_icon_engine(path_, tinted_); }

  private:
    QPixmap drawn(const QSize& size, QIcon::Mode mode) {
        if (!drawing_)
            drawing_ = std::make_unique<QSvgRenderer>(path_);
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        drawing_->render(&painter);
        if (tinted_) {
            painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
            painter.fillRect(image.rect(), tint(mode));
        }
        painter.end();
        return QPixmap::fromImage(image);
    }

    static QColor tint(QIcon::Mode mode) {
        const QPalette palette = QGuiApplication::palette();
        if (mode == QIcon::Disabled)
            return unavailable_text(palette);
        return palette.color(QPalette::Active, mode == QIcon::Selected ? QPalette::HighlightedText
                                                                       : QPalette::WindowText);
    }

    QString path_;
    bool tinted_;
    std::unique_ptr<QSvgRenderer> drawing_;
};

// Cells with padding. Not by a style sheet, which ignores padding when wrapping lines, and keeps
// its colours when the desktop's scheme changes.
class padded_cells final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        initStyleOption(&cell, index);
        option.widget->style()->drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter,
                                              option.widget);
        cell.rect = inner(option.rect);
        QStyledItemDelegate::paint(painter, cell, index);
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        cell.rect = inner(option.rect);
        return QStyledItemDelegate::sizeHint(cell, index) + QSize(GRID, GRID + GRID / 2);
    }

  private:
    static QRect inner(const QRect& cell) { return cell.adjusted(GRID / 2, 0, -GRID / 2, 0); }
};

} // namespace

QIcon drawn_icon(std::string_view name) {
    const QString path =
        QStringLiteral(":/kestrom/icons/") + display_text(name) + QStringLiteral(".svg");
    return QFile::exists(path) ? QIcon(new drawn_icon_engine(path, true)) : QIcon();
}

QColor unavailable_text(const QPalette& palette) {
    constexpr float SHARE = 0.45f;
    const QColor text = palette.color(QPalette::Active, QPalette::WindowText);
    const QColor ground = palette.color(QPalette::Active, QPalette::Window);
    const auto between = [](float a, float b) { return SHARE * a + (1 - SHARE) * b; };
    return QColor::fromRgbF(between(text.redF(), ground.redF()),
                            between(text.greenF(), ground.greenF()),
                            between(text.blueF(), ground.blueF()));
}

QIcon picture_icon(const QString& path) {
    return QIcon(new drawn_icon_engine(path, false));
}

QString ui_text(Ks_lite_delegate& delegate, std::string_view key) {
    return display_text(delegate.doors().resources.localized(key));
}

void give_room(QTableView* table) {
    table->setItemDelegate(new padded_cells(table));
    table->setTabKeyNavigation(false);
    table->verticalHeader()->hide();
    table->horizontalHeader()->setHighlightSections(false);
    table->horizontalHeader()->setFixedHeight(table->fontMetrics().height() + 2 * GRID);
}

void fit_column(QTableView* table, int column, const QString& widest) {
    QHeaderView* header = table->horizontalHeader();
    header->setSectionResizeMode(column, QHeaderView::Fixed);
    const QString title = table->model()->headerData(column, Qt::Horizontal).toString();
    const QFontMetrics text(table->font());
    const QFontMetrics fixed(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    header->resizeSection(column, 4 * GRID + std::max({text.horizontalAdvance(widest),
                                                       fixed.horizontalAdvance(widest),
                                                       text.horizontalAdvance(title)}));
}

screen_bones make_screen_bones(Ks_lite_delegate& delegate, std::string_view title_key,
                               bool with_status) {
    screen_bones bones;
    bones.root = new QWidget;
    auto* column = new QVBoxLayout(bones.root);
    column->setContentsMargins(2 * GRID, GRID, 2 * GRID, GRID);
    column->setSpacing(GRID);

    bones.title_row = new QHBoxLayout;
    bones.title_row->setSpacing(GRID);
    auto* title = new QLabel(ui_text(delegate, title_key), bones.root);
    title->setObjectName(QStringLiteral("titleLbl"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.5);
    font.setWeight(QFont::DemiBold);
    title->setFont(font);
    title->setMinimumHeight(TITLE_ROW_HEIGHT);
    bones.title_row->addWidget(title);
    bones.title_row->addStretch(1);
    column->addLayout(bones.title_row);

    bones.content = new QVBoxLayout;
    bones.content->setSpacing(2 * GRID);
    column->addLayout(bones.content, 1);

    if (with_status) {
        auto* foot = new QHBoxLayout;
        foot->setSpacing(GRID);
        bones.waity =
            new busy_indicator(bones.root, [&delegate] { return delegate.anything_outstanding(); });
        bones.waity->setAccessibleName(ui_text(delegate, "ui_busy"));
        auto* place = new status_place(bones.root);
        bones.status = place->line();
        bones.status->setAccessibleDescription(ui_text(delegate, "ui_status"));
        foot->addWidget(place, 1);
        auto* hint = new stall_hint(delegate, bones.root);
        foot->addWidget(hint);
        foot->addWidget(hint->reconnect());
        foot->addWidget(bones.waity);
        column->addLayout(foot);
    }
    return bones;
}

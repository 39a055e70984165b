#include "lookup_window.h"

#include "chrome.h"
#include "code_search.h"
#include "display_text.h"

#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

constexpr QSize DEFAULT_SIZE{600, 420};
enum column { CODE, DESCRIPTION, COLUMNS };

QTableWidgetItem* cell(const std::string& text) {
    auto* item = new QTableWidgetItem(display_text(text));
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

} // namespace

lookup_window::lookup_window(Ks_lite_delegate& delegate, QWidget* parent)
    : QDialog(parent), delegate_(delegate) {
    setObjectName(QStringLiteral("lookupWindow"));
    setWindowTitle(ui_text(delegate_, "ui_lookup_title"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * GRID, 2 * GRID, 2 * GRID, 2 * GRID);
    column->setSpacing(GRID);
    search_ = new QLineEdit(this);
    search_->setObjectName(QStringLiteral("lookupText"));
    search_->setPlaceholderText(ui_text(delegate_, "ui_lookup_search"));
    search_->setAccessibleName(ui_text(delegate_, "ui_lookup_search"));
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { look_up(text); });
    column->addWidget(search_);
    build_table();
    column->addWidget(codes_, 1);
    auto* foot = new QHBoxLayout;
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("lookupTold"));
    status_->setTextFormat(Qt::PlainText);
    foot->addWidget(status_, 1);
    auto* close = new QPushButton(ui_text(delegate_, "ui_lookup_close"), this);
    close->setAutoDefault(false);
    connect(close, &QPushButton::clicked, this, &QDialog::reject);
    foot->addWidget(close);
    column->addLayout(foot);
    resize(DEFAULT_SIZE);
}

void lookup_window::build_table() {
    codes_ = new QTableWidget(0, COLUMNS, this);
    codes_->setObjectName(QStringLiteral("lookupCodes"));
    codes_->setAccessibleName(ui_text(delegate_, "ui_lookup_title"));
    codes_->setHorizontalHeaderLabels(
        {ui_text(delegate_, "ui_col_code"), ui_text(delegate_, "ui_col_description")});
    codes_->setSelectionBehavior(QAbstractItemView::SelectRows);
    codes_->setShowGrid(false);
    give_room(codes_);
    codes_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    fit_column(codes_, CODE, QStringLiteral("P0WWW"));
    codes_->horizontalHeader()->setSectionResizeMode(DESCRIPTION, QHeaderView::Stretch);
}

void lookup_window::open_beside() {
    show();
    raise();
    activateWindow();
    search_->setFocus();
    search_->selectAll();
}

void lookup_window::look_up(const QString& text) {
    const std::string wanted = text.toStdString();
    const std::vector<found_code> found = search_codes(mac_toolies::sharedManager(), wanted);
    codes_->setRowCount(static_cast<int>(found.size()));
    for (int row = 0; row < codes_->rowCount(); ++row) {
        const auto& [code, description] = found[static_cast<std::size_t>(row)];
        codes_->setItem(row, CODE, cell(code));
        codes_->setItem(row, DESCRIPTION, cell(description));
        codes_->item(row, DESCRIPTION)->setToolTip(display_text(description).toHtmlEscaped());
    }
    const bool nothing = found.empty();
    status_->setText(text.trimmed().isEmpty() ? QString()
                     : nothing                ? ui_text(delegate_, "ui_lookup_none")
                                              : ui_text(delegate_, "ui_lookup_found")
                                     .replace(QStringLiteral("%d"), QString::number(found.size())));
}

#include "more_parameters.h"

#include "actions.h"
#include "chrome.h"
#include "constantes.h"
#include "display_text.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "parameters.h"
#include "text.h"
#include "user_defaults.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize DEFAULT_SIZE{640, 520};
constexpr unsigned FIRST_COMPUTED = 0xE1, LAST_COMPUTED = 0xE8; // not parameters of the car
enum column { NAME, UNIT, PID, SUPPORT, COLUMNS };

bool contains_pid(const std::vector<std::string>& pids, const std::string& pid) {
    return std::ranges::any_of(pids, [&](const std::string& one) {
        return mac_toolies::convertStr2Byte(one) == mac_toolies::convertStr2Byte(pid);
    });
}

} // namespace

more_parameters::more_parameters(Ks_lite_delegate& delegate, class actions& screen, QWidget* parent)
    : QDialog(parent), delegate_(delegate), screen_(screen) {
    setObjectName(QStringLiteral("moreParametersDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(ui_text(delegate_, "ui_more_title"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * GRID, 2 * GRID, 2 * GRID, 2 * GRID);
    column->setSpacing(GRID);
    search_ = new QLineEdit(this);
    search_->setObjectName(QStringLiteral("searchParameters"));
    search_->setPlaceholderText(ui_text(delegate_, "ui_more_search"));
    search_->setAccessibleName(ui_text(delegate_, "ui_more_search"));
    connect(search_, &QLineEdit::textChanged, this, [this](const QString& text) { filter(text); });
    column->addWidget(search_);
    build_list(column);
    build_foot(column);
    fill_list();
    mark_supported();
    resize(DEFAULT_SIZE);
    if (connected_2_KS_interface && !screen_.car_parameters() && !screen_.running())
        ask();
}

void more_parameters::build_list(QVBoxLayout* column) {
    list_ = new QTreeWidget(this);
    list_->setObjectName(QStringLiteral("parameters"));
    list_->setAccessibleName(ui_text(delegate_, "ui_more_title"));
    list_->setColumnCount(COLUMNS);
    list_->setHeaderLabels({ui_text(delegate_, "ui_more_name"), ui_text(delegate_, "ui_more_unit"),
                            QStringLiteral("PID"), ui_text(delegate_, "ui_more_support")});
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->header()->setStretchLastSection(false);
    list_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list_->header()->setSectionResizeMode(NAME, QHeaderView::Stretch);
    column->addWidget(list_, 1);
}

void more_parameters::build_foot(QVBoxLayout* column) {
    status_ = new QLabel(this);
    status_->setObjectName(QStringLiteral("supportTold"));
    status_->setTextFormat(Qt::PlainText);
    status_->setWordWrap(true);
    column->addWidget(status_);
    auto* buttons = new QDialogButtonBox(this);
    ask_ = buttons->addButton(ui_text(delegate_, "ui_more_ask"), QDialogButtonBox::ActionRole);
    ask_->setObjectName(QStringLiteral("askCar"));
    ask_->setAutoDefault(false);
    connect(ask_, &QPushButton::clicked, this, [this] { ask(); });
    QPushButton* use =
        buttons->addButton(ui_text(delegate_, "ui_more_use"), QDialogButtonBox::AcceptRole);
    use->setObjectName(QStringLiteral("useParameters"));
    use->setDefault(true);
    buttons->addButton(ui_text(delegate_, "ui_more_cancel"), QDialogButtonBox::RejectRole)
        ->setAutoDefault(false);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(buttons);
}

void more_parameters::fill_list() {
    const user_defaults& store = delegate_.doors().defaults;
    const std::vector<std::string> none;
    const auto of_preferences = store.string_array(PIDS_ARRAY_KEY).value_or(none);
    const auto more = store.string_array(MORE_PIDS_KEY).value_or(none);
    for (unsigned pid = 1; pid <= 0xFF; ++pid) {
        if (!is_decoded(pid) || (pid >= FIRST_COMPUTED && pid <= LAST_COMPUTED))
            continue;
        const std::string text = pid_text(pid);
        const std::string units = parameter_units(screen_.toolies, text);
        auto* item = new QTreeWidgetItem(list_);
        item->setText(NAME, display_text(parameter_name(screen_.toolies, text)));
        item->setText(UNIT, units == "N/A" ? QString() : display_text(units).trimmed());
        item->setText(PID, display_text(text));
        const bool fixed = contains_pid(of_preferences, text);
        item->setCheckState(NAME, fixed || contains_pid(more, text) ? Qt::Checked : Qt::Unchecked);
        if (fixed) {
            item->setFlags(item->flags() & ~Qt::ItemIsUserCheckable);
            item->setToolTip(NAME, ui_text(delegate_, "ui_more_in_prefs"));
        }
    }
    list_->setCurrentItem(list_->topLevelItem(0));
}

void more_parameters::filter(const QString& words) {
    const QStringList wanted = words.split(u' ', Qt::SkipEmptyParts);
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        const QString text = item->text(NAME) + u' ' + item->text(PID);
        item->setHidden(!std::ranges::all_of(
            wanted, [&](const QString& word) { return text.contains(word, Qt::CaseInsensitive); }));
    }
}

void more_parameters::ask() {
    ask_->setEnabled(false);
    status_->setText(ui_text(delegate_, "ui_more_asking"));
    screen_.ask_what_car_supports([dialog = QPointer<more_parameters>(this)] {
        if (dialog)
            dialog->mark_supported();
    });
}

void more_parameters::mark_supported() {
    const auto& known = screen_.car_parameters();
    ask_->setEnabled(!screen_.running());
    status_->setText(known ? ui_text(delegate_, "ui_more_known")
                                 .replace(QStringLiteral("%d"), QString::number(known->count()))
                           : ui_text(delegate_, screen_.scan_completed() ? "ui_more_untold"
                                                                         : "ui_more_unknown"));
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        QTreeWidgetItem* item = list_->topLevelItem(row);
        const unsigned pid = mac_toolies::convertStr2Byte(item->text(PID).toStdString());
        const bool supported = known && known->test(pid);
        item->setText(SUPPORT, !known      ? QString()
                               : supported ? ui_text(delegate_, "ui_more_yes")
                                           : ui_text(delegate_, "ui_more_no"));
        for (int column = 0; column < COLUMNS; ++column)
            item->setData(column, Qt::ForegroundRole,
                          known && !supported ? QVariant(QBrush(unavailable_text(palette())))
                                              : QVariant());
    }
}

void more_parameters::accept() {
    std::vector<std::string> more;
    for (int row = 0; row < list_->topLevelItemCount(); ++row) {
        const QTreeWidgetItem* item = list_->topLevelItem(row);
        if (item->checkState(NAME) == Qt::Checked &&
            item->flags().testFlag(Qt::ItemIsUserCheckable))
            more.push_back(item->text(PID).toStdString());
    }
    delegate_.doors().defaults.set_string_array(MORE_PIDS_KEY, more);
    delegate_.doors().defaults.synchronize();
    QDialog::accept();
    if (chosen)
        chosen();
}

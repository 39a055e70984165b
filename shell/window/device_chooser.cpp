#include "device_chooser.h"

#include "bundle.h"
#include "busy_indicator.h"
#include "chrome.h"
#include "display_text.h"
#include "empty_hint.h"
#include "rows_model.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QSize DEFAULT_SIZE{840, 440};
constexpr int REFRESH_MS = 100; // hundreds of devices report many times a second
constexpr int TICK_MS = 1000;
constexpr int PATIENCE_MS = 5000; // afterwards the seconds are counted
constexpr int LONGEST_NAME = 60;

} // namespace

QString one_line(const std::string& name) {
    QString line = display_text(name).simplified();
    return line.size() > LONGEST_NAME ? line.left(LONGEST_NAME) + QChar(0x2026) : line;
}

device_chooser::device_chooser(QWidget* parent, bluez_devices& devices, const bundle& texts,
                               std::string last_address)
    : QDialog(parent), devices_(devices), texts_(texts), last_address_(std::move(last_address)) {
    setObjectName(QStringLiteral("deviceChooser"));
    setWindowTitle(text("bt_chooser_title"));
    resize(DEFAULT_SIZE);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * GRID, 2 * GRID, 2 * GRID, 2 * GRID);
    column->setSpacing(2 * GRID);
    auto* sentence = new QLabel(text("bt_chooser_sentence"), this);
    sentence->setWordWrap(true);
    column->addWidget(sentence);
    build_table();
    column->addWidget(table_, 1);
    column->addWidget(build_foot());

    refresh_soon_.setSingleShot(true);
    refresh_soon_.setInterval(REFRESH_MS);
    QObject::connect(&refresh_soon_, &QTimer::timeout, this, [this] { refresh(); });
    QObject::connect(&devices_, &bluez_devices::changed, this, [this] {
        if (!refresh_soon_.isActive())
            refresh_soon_.start();
    });
    tick_.setInterval(TICK_MS);
    QObject::connect(&tick_, &QTimer::timeout, this, [this] { show_state(); });
    search();
    table_->setFocus();
}

device_chooser::~device_chooser() {
    devices_.stop_search();
}

QString device_chooser::text(const char* key) const {
    return display_text(texts_.localized(key));
}

void device_chooser::build_table() {
    table_ = new QTableView(this);
    table_->setObjectName(QStringLiteral("devices"));
    table_->setAccessibleName(text("bt_devices"));
    model_ = new rows_model(
        {{QStringLiteral("Name"), text("bt_col_name")},
         {QStringLiteral("Address"), text("bt_col_address")},
         {QStringLiteral("Paired"), text("bt_col_paired")},
         {QStringLiteral("Signal"), text("bt_col_signal")},
         {QStringLiteral("Kind"), text("bt_col_kind")},
         {QStringLiteral("Serial"), text("bt_col_serial")}},
        [this](int row, const QString& column) { return cell(row, column); }, table_);
    model_->decorate = [this](int row, const QString& column, int role) -> QVariant {
        if (role == Qt::FontRole && column == QLatin1String("Address"))
            return QFontDatabase::systemFont(QFontDatabase::FixedFont);
        if (role == Qt::ForegroundRole && table_->isEnabled() &&
            entries_[static_cast<std::size_t>(row)].serial_port == serial_port_offer::no)
            return palette().color(QPalette::PlaceholderText);
        if (role == Qt::ToolTipRole && column == QLatin1String("Name")) // may be cut short
            return QStringLiteral("<span>%1</span>").arg(cell(row, column).toHtmlEscaped());
        return {};
    };
    table_->setModel(model_);
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setSelectionMode(QAbstractItemView::SingleSelection);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setShowGrid(false);
    table_->setWordWrap(false);
    give_room(table_);
    table_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    fit_column(table_, 1, QStringLiteral("00:00:00:00:00:00"));
    fit_column(table_, 2, text("bt_yes"));
    fit_column(table_, 3, QStringLiteral("-100 dBm"));
    fit_column(table_, 4, text("bt_when_connecting"));
    fit_column(table_, 5, text("bt_when_connecting"));
    hint_ = new empty_hint(table_, QString());
    // The advice may be a command to copy.
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents, false);
    hint_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QObject::connect(table_, &QTableView::activated, this, [this] { connect_selected(); });
    QObject::connect(table_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                     [this] { show_state(); });
}

QWidget* device_chooser::build_foot() {
    auto* foot = new QWidget(this);
    auto* column = new QVBoxLayout(foot);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2 * GRID);
    auto* state_row = new QHBoxLayout;
    state_row->setSpacing(GRID);
    waity_ = new busy_indicator(foot, [] { return true; });
    waity_->setAccessibleName(text("ui_busy"));
    state_ = new QLabel(foot);
    state_->setObjectName(QStringLiteral("state"));
    state_->setTextFormat(Qt::PlainText);
    state_->setWordWrap(true);
    state_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    state_->setMinimumHeight(2 * fontMetrics().lineSpacing());
    state_row->addWidget(state_, 1);
    state_row->addWidget(waity_);
    column->addLayout(state_row);

    auto* row = new QHBoxLayout;
    row->setSpacing(GRID);
    const auto button = [&](const char* name, const char* key) {
        auto* made = new QPushButton(text(key), foot);
        made->setObjectName(QLatin1String(name));
        made->setAutoDefault(false);
        return made;
    };
    search_ = button("searchBtn", "bt_search_again");
    auto* cancel = button("cancelBtn", "bt_cancel");
    connect_ = button("connectBtn", "bt_connect");
    connect_->setDefault(true);
    QObject::connect(search_, &QPushButton::clicked, this, [this] { search(); });
    QObject::connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
    QObject::connect(connect_, &QPushButton::clicked, this, [this] { connect_selected(); });
    row->addWidget(search_);
    row->addStretch(1);
    row->addWidget(cancel);
    row->addWidget(connect_);
    column->addLayout(row);
    return foot;
}

QString device_chooser::cell(int row, const QString& column) const {
    const bluetooth_entry& device = entries_[static_cast<std::size_t>(row)];
    if (column == QLatin1String("Name"))
        return one_line(device.name);
    if (column == QLatin1String("Address"))
        return display_text(device.address);
    if (column == QLatin1String("Paired"))
        return device.paired ? text("bt_yes") : QString();
    if (column == QLatin1String("Signal"))
        return device.signal ? QStringLiteral("%1 dBm").arg(*device.signal) : QString();
    if (column == QLatin1String("Kind"))
        return text(!device.low_energy ? device.classic ? "bt_classic" : "bt_when_connecting"
                    : device.classic   ? "bt_both_kinds"
                                       : "bt_low_energy");
    constexpr const char* OFFERS[] = {"bt_when_connecting", "bt_yes", "bt_no"};
    return text(OFFERS[static_cast<int>(device.serial_port)]);
}

const bluetooth_entry* device_chooser::selected() const {
    const int row = table_->selectionModel()->hasSelection() ? table_->currentIndex().row() : -1;
    return row >= 0 && row < static_cast<int>(entries_.size())
               ? &entries_[static_cast<std::size_t>(row)]
               : nullptr;
}

void device_chooser::select(const std::string& address) {
    auto found = std::ranges::find(entries_, address, &bluetooth_entry::address);
    if (found == entries_.end())
        found = std::ranges::find(entries_, last_address_, &bluetooth_entry::address);
    if (found == entries_.end())
        found = std::ranges::find_if(entries_, [](const bluetooth_entry& device) {
            return device.serial_port != serial_port_offer::no;
        });
    if (found != entries_.end())
        table_->selectRow(static_cast<int>(found - entries_.begin()));
}

void device_chooser::refresh() {
    const bluetooth_entry* const before = selected();
    const std::string address = before ? before->address : std::string();
    entries_ = devices_.devices();
    model_->reload(static_cast<int>(entries_.size()));
    select(address);
    show_state();
}

// The state, or the problem, in one or two sentences.
QString device_chooser::state_text() const {
    if (connection_) {
        QString sentence = text("bt_connecting").arg(one_line(connecting_name_));
        if (since_.elapsed() > PATIENCE_MS)
            sentence += QStringLiteral(" (%1 s)").arg(since_.elapsed() / 1000);
        return sentence;
    }
    if (const bluetooth_problem problem = devices_.problem(); problem != bluetooth_problem::none)
        return display_text(problem_text(problem, texts_));
    if (!failure_.isEmpty())
        return failure_;
    if (const bluetooth_entry* device = selected();
        device && device->serial_port == serial_port_offer::no)
        return display_text(problem_text(bluetooth_problem::no_serial_port, texts_,
                                         one_line(device->name).toStdString()));
    if (devices_.starting() || devices_.searching())
        return text("bt_searching");
    return text(entries_.empty() ? "bt_none_found" : "bt_search_over");
}

void device_chooser::show_state() {
    const QString sentence = state_text();
    const bool usable = devices_.problem() == bluetooth_problem::none;
    const bool waiting = connection_ || devices_.starting() || devices_.searching();
    // An empty table says it in the middle; saying it twice is noise.
    hint_->setText(sentence);
    hint_->setForegroundRole(usable ? QPalette::PlaceholderText : QPalette::Text);
    state_->setText(entries_.empty() ? QString() : sentence);
    if (waity_->isHidden() == waiting)
        waity_->setVisible(waiting);
    const bluetooth_entry* device = selected();
    table_->setEnabled(!connection_);
    search_->setEnabled(!connection_ && usable);
    connect_->setEnabled(!connection_ && usable && device &&
                         device->serial_port != serial_port_offer::no);
}

void device_chooser::search() {
    failure_.clear();
    devices_.search();
    refresh();
}

void device_chooser::connect_selected() {
    const bluetooth_entry* device = selected();
    if (connection_ || !device || !connect_->isEnabled())
        return;
    failure_.clear();
    connecting_name_ = device->name;
    since_.start();
    tick_.start();
    connection_ = std::make_unique<bluez_connection>(devices_, device->address);
    QObject::connect(connection_.get(), &bluez_connection::done, this,
                     [this] { connection_done(); });
    show_state();
}

void device_chooser::connection_done() {
    tick_.stop();
    if (connection_->problem() == bluetooth_problem::none) {
        accept();
        return;
    }
    failure_ = display_text(
        problem_text(connection_->problem(), texts_, one_line(connecting_name_).toStdString()));
    connection_.release()->deleteLater();
    refresh();
    table_->setFocus();
}

// While connecting, cancelling returns to the list.
void device_chooser::reject() {
    if (!connection_) {
        QDialog::reject();
        return;
    }
    tick_.stop();
    connection_.release()->deleteLater();
    refresh();
    table_->setFocus();
}

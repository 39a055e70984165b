#include "prefs_view.h"

#include "bundle.h"
#include "chrome.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "languages.h"
#include "rows_model.h"
#include "transports.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QFileInfo>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QStyledItemDelegate>
#include <QSvgRenderer>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int CHECK_SIDE = 20;

// Draws the check images over the "Value" column.
class check_painter final : public QStyledItemDelegate {
  public:
    check_painter(const bundle& resources, QObject* parent)
        : QStyledItemDelegate(parent), on_(display_text(resources.image_path("chk_on.svg"))),
          off_(display_text(resources.image_path("chk_off.svg"))) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem ground = option;
        initStyleOption(&ground, index);
        ground.text.clear();
        ground.widget->style()->drawControl(QStyle::CE_ItemViewItem, &ground, painter,
                                            ground.widget);
        QRectF box(0, 0, CHECK_SIDE, CHECK_SIDE);
        box.moveCenter(QRectF(option.rect).center());
        const int margin =
            ground.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, &ground) + 1;
        box.moveLeft(option.rect.left() + GRID / 2 + margin); // where the heading's text begins
        const bool selected = index.data().toString() == QLatin1String("YES");
        (selected ? on_ : off_).render(painter, box);
    }

  private:
    mutable QSvgRenderer on_, off_;
};

} // namespace

prefs_view::prefs_view(Ks_lite_delegate& delegate) : delegate_(delegate) {
    const screen_bones bones = make_screen_bones(delegate, "ui_prefs_title", false);
    root_.reset(bones.root);
    auto* columns = new QHBoxLayout;
    columns->setSpacing(2 * GRID);
    auto* left = new QVBoxLayout;
    left->setSpacing(2 * GRID);
    left->addWidget(build_adapter());
    left->addWidget(build_display());
    left->addWidget(build_language());
    left->addStretch(1);
    columns->addLayout(left, 1);
    columns->addWidget(build_parameters(), 1);
    bones.content->addLayout(columns, 1);

    auto* foot = new QHBoxLayout;
    auto* note = new QLabel(ui_text(delegate, "ui_prefs_saved_on_leaving"), root());
    note->setWordWrap(true);
    note->setForegroundRole(QPalette::PlaceholderText);
    auto* defaults = new QPushButton(ui_text(delegate, "ui_defaults"), root());
    defaults->setObjectName(QStringLiteral("setDefaultsBtn"));
    QObject::connect(defaults, &QPushButton::clicked, root(), [this] { on_defaults(); });
    foot->addWidget(note, 1);
    foot->addWidget(defaults);
    bones.content->addLayout(foot);
}

prefs_view::~prefs_view() = default;

QWidget* prefs_view::build_adapter() {
    auto* group = new QGroupBox(ui_text(delegate_, "ui_adapter_group"), root());
    auto* column = new QVBoxLayout(group);
    column->setSpacing(GRID);
    const struct {
        const char *name, *key;
        std::function<void()>& clicked;
        QWidget* (prefs_view::*panel)(QWidget* group);
    } rows[] = {
        {"interfaceBluetooth", "ui_bluetooth", on_bluetooth, &prefs_view::build_bluetooth_panel},
        {"interfaceWifi", "ui_wifi", on_wifi, &prefs_view::build_wifi_panel},
        {"interfaceSerial", "ui_serial", on_serial, &prefs_view::build_serial_panel},
    };
    for (std::size_t row = 0; row < interfaces_.size(); ++row) {
        auto* choice = new QRadioButton(ui_text(delegate_, rows[row].key), group);
        choice->setObjectName(QLatin1String(rows[row].name));
        choice->setToolTip(ui_text(delegate_, transports()[row].kind_key));
        QObject::connect(choice, &QRadioButton::clicked, root(),
                         [&clicked = rows[row].clicked] { clicked(); });
        interfaces_[row] = choice;
        const auto build_panel = rows[row].panel;
        panels_[row] = (this->*build_panel)(group);
        column->addWidget(choice);
        column->addWidget(panels_[row]);
    }
    return group;
}

QWidget* prefs_view::build_bluetooth_panel(QWidget* group) {
    auto* panel = new QWidget(group);
    auto* indented = new QHBoxLayout(panel);
    indented->setContentsMargins(3 * GRID, 0, 0, 0);
    lastBTCheck_ = new QCheckBox(ui_text(delegate_, "ui_last_bt"), panel);
    lastBTCheck_->setObjectName(QStringLiteral("lastBTCheck"));
    lastBTCheck_->setToolTip(ui_text(delegate_, "ui_last_bt_hint"));
    indented->addWidget(lastBTCheck_);
    return panel;
}

QWidget* prefs_view::build_wifi_panel(QWidget* group) {
    auto* panel = new QWidget(group);
    panel->setObjectName(QStringLiteral("wifiTabView"));
    auto* form = new QFormLayout(panel);
    form->setContentsMargins(3 * GRID, 0, 0, 0);
    form->setSpacing(GRID);
    ipLbl_ = new QLineEdit(panel);
    ipLbl_->setObjectName(QStringLiteral("ipLbl"));
    portsLbl_ = new QLineEdit(panel);
    portsLbl_->setObjectName(QStringLiteral("portsLbl"));
    for (QLineEdit* field : {ipLbl_, portsLbl_})
        field->setMaximumWidth(40 * GRID);
    form->addRow(ui_text(delegate_, "ui_address"), ipLbl_);
    form->addRow(ui_text(delegate_, "ui_port"), portsLbl_);
    return panel;
}

QWidget* prefs_view::build_serial_panel(QWidget* group) {
    auto* panel = new QWidget(group);
    panel->setObjectName(QStringLiteral("serialPanel"));
    auto* form = new QFormLayout(panel);
    form->setContentsMargins(3 * GRID, 0, 0, 0);
    form->setSpacing(GRID);
    serial_port_ = new QComboBox(panel);
    serial_port_->setObjectName(QStringLiteral("serialPort"));
    serial_speed_ = new QComboBox(panel);
    serial_speed_->setObjectName(QStringLiteral("serialSpeed"));
    serial_speed_->addItem(ui_text(delegate_, "ui_serial_auto"), 0);
    for (const long speed : USUAL_SPEEDS)
        serial_speed_->addItem(QString::number(speed), static_cast<int>(speed));
    // A cable's description may be long.
    serial_port_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    serial_port_->setMinimumContentsLength(12);
    serial_port_->setMaximumWidth(40 * GRID);
    form->addRow(ui_text(delegate_, "ui_port"), serial_port_);
    form->addRow(ui_text(delegate_, "ui_serial_speed"), serial_speed_);
    QObject::connect(serial_port_, &QComboBox::activated, root(), [this] {
        chosen_port_ = serial_port_->currentData().toString().toStdString();
    });
    return panel;
}

QWidget* prefs_view::build_display() {
    auto* group = new QGroupBox(ui_text(delegate_, "ui_units_group"), root());
    auto* column = new QVBoxLayout(group);
    column->setSpacing(GRID);
    unitsCheck_ = new QCheckBox(ui_text(delegate_, "ui_metric"), group);
    unitsCheck_->setObjectName(QStringLiteral("unitsCheck"));
    unitsCheck_->setToolTip(ui_text(delegate_, "ui_metric_hint"));
    QObject::connect(unitsCheck_, &QCheckBox::clicked, root(), [this] { on_metric(); });
    logRunsCheck_ = new QCheckBox(ui_text(delegate_, "ui_log_runs"), group);
    logRunsCheck_->setObjectName(QStringLiteral("logRunsCheck"));
    logRunsCheck_->setToolTip(ui_text(delegate_, "ui_log_runs_hint"));
    column->addWidget(unitsCheck_);
    column->addWidget(logRunsCheck_);
    return group;
}

QWidget* prefs_view::build_language() {
    auto* row = new QWidget(root());
    auto* line = new QHBoxLayout(row);
    line->setContentsMargins(0, 0, 0, 0);
    line->setSpacing(GRID);
    language_ = new QComboBox(row);
    language_->setObjectName(QStringLiteral("languageBox"));
    language_->setToolTip(ui_text(delegate_, "ui_language_hint"));
    language_->addItem(ui_text(delegate_, "ui_language_desktop"), QString());
    for (const auto& [code, name] : languages())
        language_->addItem(QString::fromUtf8(name), QString::fromUtf8(code));
    auto* label = new QLabel(ui_text(delegate_, "ui_language"), row);
    label->setBuddy(language_);
    line->addWidget(label);
    line->addWidget(language_);
    line->addStretch(1);
    return row;
}

QWidget* prefs_view::build_parameters() {
    auto* group = new QGroupBox(ui_text(delegate_, "ui_pids_group"), root());
    auto* column = new QVBoxLayout(group);
    column->setSpacing(GRID);
    pid_availableTableView_ = new QTableView(group);
    QTableView* table = pid_availableTableView_;
    table->setObjectName(QStringLiteral("_pid_availableTableView"));
    table->setAccessibleName(ui_text(delegate_, "ui_pids_table"));
    pids_model_ = new rows_model(
        {{QStringLiteral("Value"), ui_text(delegate_, "ui_col_show")},
         {QStringLiteral("Name"), ui_text(delegate_, "ui_col_parameter")}},
        [this](int row, const QString& identifier) {
            const pid_row& entry = pids_[static_cast<std::size_t>(row)];
            if (identifier == QLatin1String("Value"))
                return entry.selected ? QStringLiteral("YES") : QStringLiteral("NO");
            return display_text(entry.name);
        },
        table);
    table->setModel(pids_model_);
    table->setItemDelegateForColumn(0, new check_painter(delegate_.doors().resources, table));
    // A click toggles the row and leaves no selection.
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    give_room(table);
    table->verticalHeader()->setDefaultSectionSize(CHECK_SIDE + GRID + GRID / 2);
    fit_column(table, 0, QString());
    table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    QObject::connect(table, &QTableView::clicked, root(),
                     [this](const QModelIndex& cell) { on_row(cell.row()); });
    auto* toggle = new QAction(table);
    toggle->setShortcuts({Qt::Key_Space, Qt::Key_Return});
    toggle->setShortcutContext(Qt::WidgetShortcut);
    QObject::connect(toggle, &QAction::triggered, root(),
                     [this] { on_row(pid_availableTableView_->currentIndex().row()); });
    table->addAction(toggle);

    pidsStatus_ = new QLabel(group);
    pidsStatus_->setObjectName(QStringLiteral("pidsStatus"));
    pidsStatus_->setTextFormat(Qt::PlainText);
    column->addWidget(table, 1);
    column->addWidget(pidsStatus_);
    return group;
}

void prefs_view::select_interface(std::size_t row) {
    interfaces_[row]->setChecked(true);
    root()->setFocusProxy(interfaces_[row]);
}

std::size_t prefs_view::interface_row() const {
    std::size_t row = 0;
    while (!interfaces_[row]->isChecked())
        ++row;
    return row;
}

void prefs_view::show_panel() {
    for (std::size_t row = 0; row < panels_.size(); ++row) {
        panels_[row]->setVisible(interfaces_[row]->isChecked());
        panels_[row]->setEnabled(interfaces_[row]->isChecked());
    }
}

void prefs_view::set_serial(const std::string& path, int speed) {
    chosen_port_ = path;
    if (serial_speed_->findData(speed) < 0)
        serial_speed_->addItem(QString::number(speed), speed);
    serial_speed_->setCurrentIndex(serial_speed_->findData(speed));
    show_serial_ports(ports_);
}

// The chosen port stays chosen while it is unplugged. If none was chosen, the first cable is; the
// computer's own ports, which have no name, are not.
void prefs_view::show_serial_ports(std::vector<serial_port_entry> ports) {
    if (chosen_port_.empty() && !ports.empty() && !ports.front().name.empty())
        chosen_port_ = ports.front().path;
    const QString chosen = display_text(chosen_port_);
    // Symbolic links and pseudo-terminals are not in the list.
    if (QFileInfo::exists(chosen) &&
        std::ranges::find(ports, chosen_port_, &serial_port_entry::path) == ports.end())
        ports.push_back({chosen_port_, "", ""});
    if (ports == ports_ && serial_port_->currentData() == chosen && serial_port_->count() > 0)
        return;
    ports_ = ports;
    serial_port_->clear();
    for (const serial_port_entry& port : ports) {
        std::string words = port.path;
        for (const std::string& word : {port.name, port.maker})
            if (!word.empty())
                words += (words == port.path ? ": " : ", ") + printable_line(word);
        serial_port_->addItem(display_text(words), display_text(port.path));
        serial_port_->setItemData(serial_port_->count() - 1, display_text(words), Qt::ToolTipRole);
    }
    if (serial_port_->findData(chosen) < 0)
        serial_port_->addItem(chosen.isEmpty() ? ui_text(delegate_, "ui_serial_none")
                                               : ui_text(delegate_, "ui_serial_absent").arg(chosen),
                              chosen);
    serial_port_->setCurrentIndex(serial_port_->findData(chosen));
    serial_port_->setToolTip(serial_port_->currentText()); // may be elided in the box
}

std::string prefs_view::serial_port() const {
    return chosen_port_;
}
int prefs_view::serial_speed() const {
    return serial_speed_->currentData().toInt();
}

void prefs_view::set_address(const std::string& address, const std::string& port) {
    ipLbl_->setText(display_text(address));
    portsLbl_->setText(display_text(port));
}

std::string prefs_view::address() const {
    return ipLbl_->text().toStdString();
}
std::string prefs_view::port() const {
    return portsLbl_->text().toStdString();
}
void prefs_view::set_metric_units(bool on) {
    unitsCheck_->setChecked(on);
}
bool prefs_view::metric_units() const {
    return unitsCheck_->isChecked();
}
void prefs_view::set_log_runs(bool on) {
    logRunsCheck_->setChecked(on);
}
bool prefs_view::log_runs() const {
    return logRunsCheck_->isChecked();
}
void prefs_view::set_reuse_last_adapter(bool on) {
    lastBTCheck_->setChecked(on);
}
bool prefs_view::reuse_last_adapter() const {
    return lastBTCheck_->isChecked();
}
void prefs_view::set_language(const std::string& code) {
    language_->setCurrentIndex(language_->findData(display_text(code)));
}
std::string prefs_view::language() const {
    return language_->currentData().toString().toStdString();
}
void prefs_view::set_pids_status(const std::string& text) {
    pidsStatus_->setText(display_text(text));
}

void prefs_view::show_pids(std::vector<pid_row> rows) {
    const int current = pid_availableTableView_->currentIndex().row();
    pids_ = std::move(rows);
    pids_model_->reload(static_cast<int>(pids_.size()));
    if (current >= 0) // keeps the keyboard's place
        pid_availableTableView_->setCurrentIndex(pids_model_->index(current, 1));
}

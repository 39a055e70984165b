#include "export_window.h"

#include "chrome.h"
#include "constantes.h"
#include "globalVars.h"
#include "Ks_lite_delegate.h"
#include "mac_toolies.h"
#include "status_line.h"

#include <QCheckBox>
#include <QDateTime>
#include <QDesktopServices>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QUrl>
#include <QVBoxLayout>

#include <filesystem>

namespace {

constexpr QSize DEFAULT_SIZE{560, 420};
constexpr int PROGRESS_STEPS = 1000;
constexpr run_loop::milliseconds BETWEEN_PIECES{1}; // so that replies and the mouse come first
enum column { NAME, SIZE, WRITTEN, COLUMNS };

QTableWidgetItem* cell(const QString& text) {
    auto* item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsSelectable | Qt::ItemIsEnabled);
    return item;
}

} // namespace

export_window::export_window(Ks_lite_delegate& delegate, QWidget* parent)
    : QDialog(parent), delegate_(delegate), toolies_(mac_toolies::sharedManager()) {
    setObjectName(QStringLiteral("exportWindow"));
    setWindowTitle(ui_text(delegate_, "ui_export_title"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * GRID, 2 * GRID, 2 * GRID, 2 * GRID);
    column->setSpacing(GRID);
    build_list(column);
    build_foot(column);
    resize(DEFAULT_SIZE);
}

export_window::~export_window() {
    give_up();
}

void export_window::build_list(QVBoxLayout* column) {
    heading_ = new QLabel(ui_text(delegate_, "ui_export_logs"), this);
    column->addWidget(heading_);
    logs_ = new QTableWidget(0, COLUMNS, this);
    logs_->setObjectName(QStringLiteral("logs"));
    logs_->setHorizontalHeaderLabels({ui_text(delegate_, "ui_export_log"),
                                      ui_text(delegate_, "ui_export_size"),
                                      ui_text(delegate_, "ui_export_written")});
    logs_->setSelectionBehavior(QAbstractItemView::SelectRows);
    logs_->setSelectionMode(QAbstractItemView::SingleSelection);
    logs_->setShowGrid(false);
    give_room(logs_);
    logs_->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    logs_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    logs_->horizontalHeader()->setSectionResizeMode(NAME, QHeaderView::Stretch);
    connect(logs_, &QTableWidget::itemDoubleClicked, this, [this] { start_export(); });
    heading_->setBuddy(logs_);
    column->addWidget(logs_, 1);

    no_logs_ = new QLabel(ui_text(delegate_, "ui_export_none"), this);
    no_logs_->setTextFormat(Qt::PlainText);
    no_logs_->setWordWrap(true);
    no_logs_->setAlignment(Qt::AlignCenter);
    no_logs_->setForegroundRole(QPalette::PlaceholderText);
    column->addWidget(no_logs_, 1);

    as_csv_ = new QRadioButton(ui_text(delegate_, "ui_export_csv"), this);
    as_txt_ = new QRadioButton(ui_text(delegate_, "ui_export_txt"), this);
    as_txt_->setObjectName(QStringLiteral("asText"));
    as_csv_->setChecked(true);
    column->addWidget(as_csv_);
    column->addWidget(as_txt_);
    with_time_ = new QCheckBox(ui_text(delegate_, "ui_export_time"), this);
    with_time_->setObjectName(QStringLiteral("withTime"));
    column->addWidget(with_time_);
    connect(logs_, &QTableWidget::currentCellChanged, this, [this] { offer_time(); });
}

void export_window::build_foot(QVBoxLayout* column) {
    progress_ = new QProgressBar(this);
    progress_->setRange(0, PROGRESS_STEPS);
    progress_->setAccessibleName(ui_text(delegate_, "ui_export_progress"));
    QSizePolicy keep = progress_->sizePolicy();
    keep.setRetainSizeWhenHidden(true);
    progress_->setSizePolicy(keep);
    progress_->hide();
    column->addWidget(progress_);
    status_ = new status_line(this);
    status_->setObjectName(QStringLiteral("told"));
    status_->setAccessibleDescription(ui_text(delegate_, "ui_status"));
    column->addWidget(status_);

    auto* buttons = new QHBoxLayout;
    const auto add = [&](const char* name, std::string_view key) {
        auto* button = new QPushButton(ui_text(delegate_, key), this);
        button->setObjectName(QLatin1String(name));
        buttons->addWidget(button);
        return button;
    };
    open_folder_ = add("openFolder", "ui_export_open_folder");
    buttons->addStretch(1);
    start_ = add("startExport", "ui_export_start");
    start_->setDefault(true);
    connect(add("closeExport", "ui_export_close"), &QPushButton::clicked, this, &QDialog::reject);
    connect(start_, &QPushButton::clicked, this, [this] { start_export(); });
    connect(open_folder_, &QPushButton::clicked, this, [this] {
        QDesktopServices::openUrl(
            QUrl::fromLocalFile(QString::fromStdString(toolies_.log_folder())));
    });
    column->addLayout(buttons);
}

void export_window::open_beside() {
    if (!work_) {
        list_logs();
        status_->set_text({});
        progress_->hide();
        open_folder_->hide();
    }
    show();
    raise();
    activateWindow();
    logs_->setFocus();
}

void export_window::list_logs() {
    const std::vector<logged_run> logs = toolies_.list_logs();
    logs_->setRowCount(static_cast<int>(logs.size()));
    const QLocale local;
    for (int row = 0; row < logs_->rowCount(); ++row) {
        const logged_run& log = logs[static_cast<std::size_t>(row)];
        logs_->setItem(row, NAME, cell(QString::fromStdString(log.name)));
        logs_->setItem(row, SIZE, cell(local.formattedDataSize(static_cast<qint64>(log.bytes))));
        logs_->setItem(
            row, WRITTEN,
            cell(local.toString(QDateTime::fromSecsSinceEpoch(log.written), QLocale::ShortFormat)));
    }
    heading_->setVisible(!logs.empty());
    logs_->setVisible(!logs.empty());
    no_logs_->setVisible(logs.empty());
    for (QWidget* widget : {static_cast<QWidget*>(start_), static_cast<QWidget*>(as_csv_),
                            static_cast<QWidget*>(as_txt_)})
        widget->setEnabled(!logs.empty());
    if (!logs.empty())
        logs_->selectRow(0);
    offer_time();
}

// If the chosen log has a companion with its times.
void export_window::offer_time() {
    const QTableWidgetItem* name = logs_->item(logs_->currentRow(), NAME);
    std::error_code unknown;
    const bool timed = name && std::filesystem::exists(times_of_log(toolies_.log_folder() + "/" +
                                                                    name->text().toStdString()),
                                                       unknown);
    with_time_->setEnabled(timed);
    with_time_->setChecked(timed);
}

void export_window::start_export() {
    const int row = logs_->currentRow();
    if (work_ || row < 0)
        return;
    const std::string folder = toolies_.log_folder() + "/";
    const std::string name = logs_->item(row, NAME)->text().toStdString();
    output_ = folder + log_export::output_name(name, as_txt_->isChecked());
    if (const auto why = why_no_run_log(folder + name)) {
        status_->set_text(*why);
        return;
    }
    status_->set_text({});
    progress_->setValue(0);
    progress_->show();
    start_->setEnabled(false);
    if (g_cur_barom_press == 0) // no boost run yet; logs count boost from the standard pressure
        g_cur_barom_press = STANDARD_BAROMETER;
    work_ = std::make_unique<log_export>(toolies_);
    take_result(work_->start(folder + name, output_, {.with_time = with_time_->isChecked()}));
}

void export_window::go_on() {
    next_piece_ = 0;
    take_result(work_->step());
}

void export_window::take_result(export_result result) {
    progress_->setValue(static_cast<int>(work_->done() * PROGRESS_STEPS));
    if (result == export_result::working) {
        next_piece_ = delegate_.doors().loop.after(BETWEEN_PIECES, [this] { go_on(); });
        return;
    }
    if (result == export_result::exported) {
        const QString rows = QLocale().toString(static_cast<qulonglong>(work_->rows()));
        const std::string done = ui_text(delegate_, "ui_export_done")
                                     .arg(rows, QString::fromStdString(output_))
                                     .toStdString();
        status_->set_text(work_->note().empty() ? done : done + "\n" + work_->note());
    } else {
        status_->set_text(work_->error());
    }
    open_folder_->show();
    work_.reset();
    progress_->hide();
    start_->setEnabled(true);
}

void export_window::give_up() {
    if (next_piece_)
        delegate_.doors().loop.cancel(next_piece_);
    next_piece_ = 0;
    work_.reset();
}

void export_window::done(int result) {
    give_up();
    progress_->hide();
    start_->setEnabled(true);
    QDialog::done(result);
}

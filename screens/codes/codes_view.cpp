#include "codes_view.h"

#include "busy_indicator.h"
#include "chrome.h"
#include "copied_rows.h"
#include "display_text.h"
#include "empty_hint.h"
#include "fact_card.h"
#include "Ks_lite_delegate.h"
#include "rows_model.h"
#include "status_line.h"
#include "text.h"
#include "unread_text.h"
#include "warning_label.h"

#include <QAction>
#include <QFontDatabase>
#include <QGridLayout>
#include <QHeaderView>
#include <QPushButton>
#include <QScrollBar>
#include <QSplitter>
#include <QTableView>
#include <QVBoxLayout>

namespace {

QTableView* make_table(const char* name, QWidget* parent) {
    auto* table = new QTableView(parent);
    table->setObjectName(QLatin1String(name));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setWordWrap(true);
    give_room(table);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    return table;
}

// A mark before the word, so that states differ without colour.
QString readiness_mark(const std::string& state) {
    if (state == "OK")
        return QStringLiteral("\u2713  OK");
    if (state == "X")
        return QStringLiteral("\u2717  X");
    return QStringLiteral("\u2212  N/A");
}

} // namespace

codes_view::codes_view(Ks_lite_delegate& delegate) : delegate_(delegate) {
    const screen_bones bones = make_screen_bones(delegate, "ui_codes_title", true);
    bones_root_.reset(bones.root);
    statusLbl_ = bones.status;
    waity_ = bones.waity;
    build_buttons(bones.title_row);
    build_cards(bones.content);
    unread_ = new warning_label(root());
    unread_->setObjectName(QStringLiteral("unreadMark"));
    unread_->setWordWrap(true);
    bones.content->addWidget(unread_);
    build_tables(bones.content);
    reset_labels();
    set_interface("");
    set_protocol("");
}

codes_view::~codes_view() = default;

void codes_view::build_buttons(QHBoxLayout* row) {
    auto make = [&](const char* name, const char* icon, std::string_view key,
                    std::function<void()>& call) {
        auto* button = new QPushButton(drawn_icon(icon), ui_text(delegate_, key), root());
        button->setObjectName(QLatin1String(name));
        button->setMinimumHeight(4 * GRID);
        QObject::connect(button, &QPushButton::clicked, root(), [&call] { call(); });
        row->addWidget(button);
        return button;
    };
    auto* read = make("readCodes", "read", "ui_read_codes", on_read);
    read->setToolTip(ui_text(delegate_, "ui_read_codes_hint"));
    read->setAutoDefault(true); // Return reads
    root()->setFocusProxy(read);
    make("clearCodes", "clear", "ui_clear_codes", on_clear)
        ->setToolTip(ui_text(delegate_, "ui_clear_codes_hint"));
    auto* diagnose = new QAction(root());
    diagnose->setObjectName(QStringLiteral("obd_sim"));
    diagnose->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_D);
    QObject::connect(diagnose, &QAction::triggered, root(), [this] { on_diagnose(); });
    root()->addAction(diagnose);
}

void codes_view::build_cards(QVBoxLayout* column) {
    auto* cards = new QGridLayout;
    cards->setSpacing(GRID);
    int at = 0;
    auto make = [&](const char* name, std::string_view caption, int stretch) {
        auto* card = new fact_card(QLatin1String(name), ui_text(delegate_, caption), root());
        cards->addWidget(card, 0, at);
        cards->setColumnStretch(at++, stretch);
        return card;
    };
    lamp_card_ = make("MILLbl", "ui_lamp", 3);
    count_card_ = make("noOfCodesLbl", "ui_count", 3);
    read_on_card_ = make("readOnLbl", "ui_read_on", 4);
    interface_card_ = make("interfaceLbl", "ui_adapter", 4);
    protocol_card_ = make("protocolLbl", "ui_protocol", 4);
    extra_card_ = make("xtraInfoLbl", "ui_units", 3);
    column->addLayout(cards);
}

void codes_view::build_tables(QVBoxLayout* column) {
    auto* split = new QSplitter(Qt::Horizontal, root());
    split->setChildrenCollapsible(false);
    split->setHandleWidth(2 * GRID);

    codesReadTableView_ = make_table("codesReadTableView", split);
    codes_model_ = new rows_model(
        {{QStringLiteral("Codes"), ui_text(delegate_, "ui_col_code")},
         {QStringLiteral("Description"), ui_text(delegate_, "ui_col_description")}},
        [this](int row, const QString& identifier) {
            const code_row& codes = codes_[static_cast<std::size_t>(row)];
            return display_text(identifier == QLatin1String("Codes") ? codes[0] : codes[1])
                .trimmed();
        },
        codesReadTableView_);
    codes_model_->decorate = [this](int row, const QString& identifier, int role) {
        return decorate_code(static_cast<std::size_t>(row), identifier, role);
    };
    codesReadTableView_->setModel(codes_model_);
    codesReadTableView_->setAccessibleName(ui_text(delegate_, "ui_codes_table"));
    codesReadTableView_->setToolTip(ui_text(delegate_, "ui_codes_table_hint"));
    make_rows_copyable(codesReadTableView_, ui_text(delegate_, "ui_copy_rows"));
    auto* to_report = new QAction(ui_text(delegate_, "ui_codes_to_report"), codesReadTableView_);
    to_report->setObjectName(QStringLiteral("codesToReport"));
    QObject::connect(to_report, &QAction::triggered, root(), [this] { delegate_.do_report(); });
    codesReadTableView_->addAction(to_report);
    fit_column(codesReadTableView_, 0, QStringLiteral("U0100"));
    codesReadTableView_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    no_codes_ = new empty_hint(codesReadTableView_, QString());

    readinessCodesTableView_ = make_table("readinessCodesTableView", split);
    readiness_model_ = new rows_model(
        {{QStringLiteral("State"), ui_text(delegate_, "ui_col_state")},
         {QStringLiteral("Description"), ui_text(delegate_, "ui_col_monitor")},
         {QStringLiteral("Kind"), ui_text(delegate_, "ui_col_kind")}},
        [this](int row, const QString& identifier) {
            const readiness_flag& flag = readiness_[static_cast<std::size_t>(row)];
            if (identifier == QLatin1String("State"))
                return readiness_mark(flag.state);
            return display_text(identifier == QLatin1String("Description") ? flag.monitor
                                                                           : flag.kind);
        },
        readinessCodesTableView_);
    readinessCodesTableView_->setModel(readiness_model_);
    readinessCodesTableView_->setAccessibleName(ui_text(delegate_, "ui_readiness_table"));
    readinessCodesTableView_->setToolTip(ui_text(delegate_, "ui_readiness_hint"));
    fit_column(readinessCodesTableView_, 0, QStringLiteral("\u2212  N/A"));
    readinessCodesTableView_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    fit_column(readinessCodesTableView_, 2, QStringLiteral("Non-Continous"));
    make_room_for_monitors();
    new empty_hint(readinessCodesTableView_, ui_text(delegate_, "ui_readiness_empty"));

    split->setStretchFactor(0, 3);
    split->setStretchFactor(1, 2);
    column->addWidget(split, 1);
}

QVariant codes_view::decorate_code(std::size_t row, const QString& identifier, int role) const {
    if (role == Qt::ToolTipRole && !code_units_[row].empty())
        return ui_text(delegate_, "ui_code_from").arg(display_text(code_units_[row]));
    if (role == Qt::FontRole && identifier == QLatin1String("Codes"))
        return QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (role == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

// Keeps the longest word of a monitor's name intact and most names to two lines, even with a scroll
// bar.
void codes_view::make_room_for_monitors() {
    QTableView* table = readinessCodesTableView_;
    const int monitor =
        table->fontMetrics().horizontalAdvance(QStringLiteral("Particulate Filter")) + 4 * GRID;
    const QHeaderView* header = table->horizontalHeader();
    table->setMinimumWidth(header->sectionSize(0) + monitor + header->sectionSize(2) +
                           table->verticalScrollBar()->sizeHint().width() +
                           2 * table->frameWidth());
}

void codes_view::show_codes(const std::vector<code_row>& rows, std::vector<std::string> units) {
    codes_ = rows;
    code_units_ = std::move(units);
    code_units_.resize(rows.size());
    codes_model_->reload(static_cast<int>(rows.size()));
}

void codes_view::show_readiness(const std::vector<readiness_flag>& rows) {
    readiness_ = rows;
    readiness_model_->reload(static_cast<int>(rows.size()));
}

void codes_view::show_waity(bool visible) {
    waity_->setVisible(visible);
}

void codes_view::set_lamp(const std::string& text) {
    lamp_ = text;
    lamp_card_->set_value(text);
    lamp_card_->show_lamp(text == "ON");
}

void codes_view::set_count(const std::string& text) {
    count_card_->set_value(text);
}

void codes_view::set_read_on(const std::string& text) {
    read_on_ = text;
    read_on_card_->set_value(text);
}

void codes_view::set_interface(const std::string& text) {
    interface_card_->set_labelled_value(without(text, ">"));
}
void codes_view::set_protocol(const std::string& text) {
    protocol_card_->set_value(text);
}
void codes_view::set_extra_info(const std::string& text) {
    extra_card_->set_labelled_value(text);
}

void codes_view::forget_status() {
    lamp_.clear();
    read_on_.clear();
    lamp_card_->set_resting("MIL Lamp:");
    count_card_->set_resting("No of DTC Codes:");
    read_on_card_->set_resting("Read on");
    no_codes_->setText(ui_text(delegate_, "ui_codes_empty"));
    unread_->hide();
}

void codes_view::reset_labels() {
    forget_status();
    extra_card_->set_resting("");
}

void codes_view::show_result(const unread_pieces& unread, bool none_counted) {
    const bool none = unread.empty() && none_counted;
    no_codes_->setText(ui_text(delegate_, none ? "ui_codes_none" : "ui_codes_unread"));
    const std::string causes = unread_causes(delegate_.doors().resources, unread);
    const QString warning = ui_text(delegate_, "ui_unread").arg(display_text(causes));
    unread_->setText(warning);
    unread_->setAccessibleName(warning);
    unread_->setVisible(!unread.empty());
}

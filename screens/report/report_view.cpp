#include "report_view.h"

#include "alerts.h"
#include "bundle.h"
#include "busy_indicator.h"
#include "chrome.h"
#include "Ks_lite_delegate.h"
#include "report_json.h"
#include "report_saving.h"
#include "report_screen.h"
#include "saved_report.h"
#include "status_line.h"
#include "user_defaults.h"

#include <QCheckBox>
#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {

constexpr char SAVED_KINDS[] = "JSON (*.json)";

} // namespace

report_view::report_view(Ks_lite_delegate& delegate, const mac_toolies& toolies)
    : delegate_(delegate), toolies_(toolies) {
    const screen_bones bones = make_screen_bones(delegate, "ui_report_title", true);
    root_.reset(bones.root);
    status_ = bones.status;
    waity_ = bones.waity;
    read_ = add_button("readReport", "ui_report_read", [this] {
        if (const auto& press = running_ ? on_cancel : on_read)
            press();
    });
    bones.title_row->addWidget(read_);

    auto* row = new QHBoxLayout;
    row->setSpacing(GRID);
    save_ = add_button("saveReport", "ui_report_save", [this] { save(); });
    print_ = add_button("printReport", "ui_report_print", [this] { print(); });
    copy_ = add_button("copyReport", "ui_report_copy", [this] { copy(); });
    auto* open_saved = add_button("openReport", "ui_report_open", [this] { open(); });
    compare_ = add_button("compareReport", "ui_report_compare", [this] { compare(); });
    for (QWidget* one :
         {static_cast<QWidget*>(save_), static_cast<QWidget*>(print_), static_cast<QWidget*>(copy_),
          static_cast<QWidget*>(open_saved), static_cast<QWidget*>(compare_)})
        row->addWidget(one);
    row->addStretch(1);
    bones.content->addLayout(row);
    auto* switches = new QHBoxLayout; // long in some languages
    switches->setSpacing(2 * GRID);
    QCheckBox* const hides = add_switch("hideVin", "ui_report_hide_vin", HIDE_VIN_KEY, true);
    QObject::connect(hides, &QCheckBox::toggled, root_.get(), [this] { show_sheet(); });
    switches->addWidget(hides);
    switches->addWidget(add_switch("offerReport", "ui_report_offer", NO_OFFER_KEY, false));
    switches->addStretch(1);
    bones.content->addLayout(switches);

    sheet_ = new QTextBrowser(root_.get());
    sheet_->setObjectName(QStringLiteral("reportSheet"));
    sheet_->setOpenLinks(false);
    sheet_->setAccessibleName(ui_text(delegate, "ui_report_title"));
    sheet_->setPlaceholderText(ui_text(delegate, "ui_report_empty"));
    sheet_->document()->setDocumentMargin(2 * GRID);
    bones.content->addWidget(sheet_, 1);
    root_->setFocusProxy(read_);
    show_running(false);
}

report_view::~report_view() = default;

QPushButton* report_view::add_button(const char* name, std::string_view key,
                                     std::function<void()> press) {
    auto* button = new QPushButton(ui_text(delegate_, key), root_.get());
    button->setObjectName(QLatin1String(name));
    QObject::connect(button, &QPushButton::clicked, root_.get(), std::move(press));
    return button;
}

// On while the setting is `on_when`.
QCheckBox* report_view::add_switch(const char* name, std::string_view key, const char* setting,
                                   bool on_when) {
    auto* box = new QCheckBox(ui_text(delegate_, key), root_.get());
    box->setObjectName(QLatin1String(name));
    box->setToolTip(ui_text(delegate_, std::string(key) + "_hint"));
    box->setChecked(delegate_.doors().defaults.boolean(setting) == on_when);
    QObject::connect(box, &QCheckBox::toggled, root_.get(), [this, setting, on_when](bool on) {
        delegate_.doors().defaults.set_boolean(setting, on == on_when);
        delegate_.doors().defaults.synchronize();
    });
    return box;
}

void report_view::show_running(bool running) {
    running_ = running;
    waity_->setVisible(running);
    read_->setText(ui_text(delegate_, running ? "ui_report_cancel" : "ui_report_read"));
}

void report_view::show_report() {
    before_.reset();
    const auto& kept = last_report().report;
    for (QPushButton* one : {save_, print_, copy_, compare_})
        one->setEnabled(kept.has_value());
    show_sheet();
}

// Shown as it would be exported, since it can be selected and copied.
void report_view::show_sheet() {
    if (last_report().report)
        sheet_->setHtml(QString::fromStdString(sheet_rich_text(sheet_to_export())));
    else
        sheet_->clear();
}

report_sheet report_view::sheet_to_export() const {
    const car_report report = report_to_export(delegate_, toolies_);
    const bundle& texts = delegate_.doors().resources;
    if (!before_)
        return sheet_of(report, texts);
    const bool hidden = delegate_.doors().defaults.boolean(HIDE_VIN_KEY);
    return comparison_of(hidden ? report_of(without_vin(before_->transcript), toolies_) : *before_,
                         report, texts);
}

void report_view::tell(const std::string& message) {
    delegate_.doors().message_boxes.show({.message = message});
}

void report_view::save() {
    const bool compared = before_.has_value();
    if (save_sheet(delegate_, root_.get(), report_to_export(delegate_, toolies_), sheet_to_export(),
                   compared) &&
        !compared)
        last_report().saved = true;
}

void report_view::print() {
    const report_sheet sheet = sheet_to_export();
    const modal_hold hold(delegate_.doors().loop);
    QPrinter printer(QPrinter::HighResolution);
    // Also the name of the file when it is printed into one.
    printer.setDocName(QString::fromStdString(usual_name(report_to_export(delegate_, toolies_))));
    printer.setPageSize(
        QPageSize(usual_paper() == paper_size::a4 ? QPageSize::A4 : QPageSize::Letter));
    printer.setPageMargins(
        QMarginsF(PAPER_MARGIN_MM, PAPER_MARGIN_MM, PAPER_MARGIN_MM, PAPER_MARGIN_MM),
        QPageLayout::Millimeter);
    if (QPrintDialog(&printer, root_.get()).exec() == QDialog::Accepted)
        print_sheet(printer, sheet);
}

void report_view::copy() {
    const report_sheet sheet = sheet_to_export();
    auto* both = new QMimeData;
    both->setText(QString::fromStdString(sheet_text(sheet)));
    both->setHtml(QString::fromStdString(sheet_html(sheet)));
    QGuiApplication::clipboard()->setMimeData(both);
    status_->set_text(ui_text(delegate_, "ui_report_copied").toStdString());
}

bool report_view::read_report(std::string_view title, car_report& to) {
    QString path;
    {
        const modal_hold hold(delegate_.doors().loop);
        path = QFileDialog::getOpenFileName(root_.get(), ui_text(delegate_, title), {},
                                            QLatin1String(SAVED_KINDS));
    }
    if (path.isEmpty())
        return false;
    std::string why;
    const auto document = read_whole(path.toStdString(), why);
    const auto transcript = document ? open_report(*document, why) : std::nullopt;
    if (!transcript) {
        tell(delegate_.doors().resources.localized("ui_report_not_opened") + " " + why);
        return false;
    }
    to = report_of(*transcript, toolies_);
    status_->set_text(ui_text(delegate_, "ui_report_opened").arg(path).toStdString());
    return true;
}

void report_view::open() {
    car_report opened;
    if (!read_report("ui_report_open_title", opened))
        return;
    last_report() = {std::move(opened), std::nullopt, true};
    show_report();
}

// The report shown is the later one.
void report_view::compare() {
    car_report before;
    if (!read_report("ui_report_compare_title", before))
        return;
    before_ = std::move(before);
    show_sheet();
}

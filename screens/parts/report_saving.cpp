#include "report_saving.h"

#include "alerts.h"
#include "bundle.h"
#include "chrome.h"
#include "conversation.h"
#include "kept_report.h"
#include "Ks_lite_delegate.h"
#include "saved_report.h"
#include "user_defaults.h"

#include <QFileDialog>

namespace {

// "pdf" of "PDF (*.pdf)".
QString ending_of(const QString& kind) {
    return kind.mid(kind.lastIndexOf(u'.') + 1).chopped(1);
}

// Adds the chosen kind's extension to a name without one, and then asks again before overwriting.
QString path_to_save(Ks_lite_delegate& delegate, QWidget* over, const QString& name, bool json) {
    QStringList kinds{QStringLiteral("HTML (*.html)"), QStringLiteral("PDF (*.pdf)"),
                      ui_text(delegate, "ui_report_text_file") + QStringLiteral(" (*.txt)")};
    if (json)
        kinds.insert(2, QStringLiteral("JSON (*.json)"));
    QFileDialog dialog(over, ui_text(delegate, "ui_report_save_title"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(kinds);
    dialog.setDefaultSuffix(ending_of(kinds.front()));
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&](const QString& kind) { dialog.setDefaultSuffix(ending_of(kind)); });
    dialog.selectFile(name);
    const modal_hold hold(delegate.doors().loop);
    while (dialog.exec() == QDialog::Accepted) {
        QString path = dialog.selectedFiles().constFirst();
        const auto kind = rendering_named(path.toStdString());
        if (kind && (json || kind != rendering::json))
            return path;
        dialog.selectFile(path + u'.' + ending_of(dialog.selectedNameFilter()));
    }
    return {};
}

} // namespace

car_report report_to_export(Ks_lite_delegate& delegate, const mac_toolies& toolies) {
    const car_report& kept = *last_report().report;
    return delegate.doors().defaults.boolean(HIDE_VIN_KEY)
               ? report_of(without_vin(kept.transcript), toolies)
               : kept;
}

bool save_sheet(Ks_lite_delegate& delegate, QWidget* over, const car_report& report,
                const report_sheet& sheet, bool is_comparison) {
    const QString path = path_to_save(
        delegate, over,
        QString::fromStdString(usual_name(report) + (is_comparison ? "_compared" : "")),
        !is_comparison);
    if (path.isEmpty())
        return false;
    const std::string file = path.toStdString();
    const auto why =
        write_whole(file, rendered(report, sheet, *rendering_named(file), usual_paper()));
    const bundle& texts = delegate.doors().resources;
    if (why)
        delegate.doors().message_boxes.show(
            {.message = texts.localized("ui_report_not_saved") + " " + *why});
    else
        delegate.current_screen()->set_status_msg(
            ui_text(delegate, "ui_report_saved").arg(path).toStdString());
    return !why;
}

#include "connecting_dialog.h"

#include "bluez_connection.h"
#include "bundle.h"
#include "busy_indicator.h"
#include "chrome.h"
#include "device_chooser.h"
#include "display_text.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int WIDTH = 460;
constexpr int TICK_MS = 1000;
constexpr int PATIENCE_MS = 5000; // afterwards the seconds are counted

} // namespace

connecting_dialog::connecting_dialog(QWidget* parent, const bluez_connection& connection,
                                     const bundle& texts, const std::string& device)
    : QDialog(parent) {
    setObjectName(QStringLiteral("connectingDialog"));
    setWindowTitle(QStringLiteral("Bluetooth"));
    setMinimumWidth(WIDTH);
    const auto text = [&](const char* key) { return display_text(texts.localized(key)); };
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(2 * GRID, 2 * GRID, 2 * GRID, 2 * GRID);
    column->setSpacing(2 * GRID);
    auto* row = new QHBoxLayout;
    const QString sentence = text("bt_connecting").arg(one_line(device));
    auto* label = new QLabel(sentence, this);
    label->setObjectName(QStringLiteral("state"));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    row->addWidget(label, 1);
    auto* waity = new busy_indicator(this, [] { return true; });
    waity->setAccessibleName(text("ui_busy"));
    row->addWidget(waity);
    column->addLayout(row);
    auto* foot = new QDialogButtonBox(this);
    foot->addButton(text("bt_cancel"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cancelBtn"));
    connect(foot, &QDialogButtonBox::rejected, this, &QDialog::reject);
    column->addWidget(foot);

    connect(&connection, &bluez_connection::done, this, &QDialog::accept);
    since_.start();
    connect(&tick_, &QTimer::timeout, this, [this, label, sentence] {
        if (since_.elapsed() > PATIENCE_MS)
            label->setText(sentence + QStringLiteral(" (%1 s)").arg(since_.elapsed() / 1000));
    });
    tick_.start(TICK_MS);
}

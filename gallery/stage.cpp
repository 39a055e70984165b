#include "stage.h"

#include "layout_rules.h"
#include "message_box_alerts.h"
#include "virtual_car_pair.h"

#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QScreen>
#include <QThread>
#include <QTimer>

namespace {

constexpr int TITLE_HEIGHT = 28;
constexpr char ANY_DATA[] = "/home/you/.local/share/kestrom";
constexpr char ANY_DAY[] = "24 Apr 2025 10:30";

adapter_options options_of(const scene& shown) {
    adapter_options options;
    options.faults = fault_set(shown.faults);
    options.latency = std::chrono::milliseconds(40);
    return options;
}

// A dialog as a desktop frames it: its title above, a thin line around.
void paint_dialog(QPainter& painter, QWidget& dialog, QSize room) {
    const QSize size = dialog.size();
    QRect place(QPoint(0, 0), size + QSize(0, TITLE_HEIGHT));
    place.moveCenter(QRect(QPoint(0, 0), room).center());
    place.moveTop(std::max(place.top(), 0));
    const QPalette colours = dialog.palette();
    painter.fillRect(place.adjusted(4, 6, 4, 6), QColor(0, 0, 0, 60));
    painter.fillRect(place, colours.color(QPalette::Window).darker(115));
    painter.setPen(colours.color(QPalette::WindowText));
    painter.drawText(QRect(place.topLeft(), QSize(size.width(), TITLE_HEIGHT)), Qt::AlignCenter,
                     dialog.windowTitle());
    painter.drawPixmap(place.topLeft() + QPoint(0, TITLE_HEIGHT), dialog.grab());
    painter.setPen(QColor(0, 0, 0, 120));
    painter.drawRect(place.adjusted(-1, -1, 0, 0));
}

} // namespace

stage::stage(const scene& shown, const std::string& language, QSize size)
    : the_car(load_car(std::string(shown.car))), adapter(the_car, options_of(shown)),
      app(shown.settings, language), window(*app.delegate) {
    app.delegate->doors().make_streams = [this](const std::string&, long) {
        return std::make_unique<virtual_car_pair>(app.loop, adapter);
    };
    app.delegate->doors().serial_ports = [] {
        return std::vector<serial_port_entry>{{"/dev/ttyUSB0", "FT232R USB UART", "FTDI"}};
    };
    app.messages.while_open = [this](const alert_request& request) { show_message(request); };
    window.resize(size);
    window.show();
    window.activateWindow();
    settle();
}

stage::~stage() {
    delete dialog_;
}

void stage::pass(double seconds) {
    app.loop.advance(std::chrono::milliseconds(static_cast<long>(seconds * 1000)));
    settle();
}

void stage::settle() {
    for (int round = 0; round < 3; ++round) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QThread::msleep(round ? 20 : 0); // the background picture comes a frame later
        QApplication::processEvents();
        if (!frozen_)
            app.loop.advance(std::chrono::milliseconds(60)); // a frame of the charts
        QApplication::processEvents();
    }
}

void stage::show_dialog(QWidget* dialog) {
    dialog_ = dialog;
    settle();
}

// The real box, until it has been rendered.
void stage::show_message(const alert_request& request) {
    if (!looks_at_message_ || !picture_.isNull())
        return;
    message_box_alerts shown(app.loop);
    QTimer::singleShot(50, &window, [this] {
        QWidget* box = QApplication::activeModalWidget();
        take_picture(box);
        box->close();
    });
    shown.show(request);
}

// Its name is another one each time.
void stage::hide_folder(QWidget& in) {
    const QString data = app.folder.filePath(QStringLiteral("data"));
    for (QLabel* label : in.findChildren<QLabel*>())
        if (label->text().contains(data))
            label->setText(QString(label->text()).replace(data, QLatin1String(ANY_DATA)));
}

void stage::take_picture(QWidget* dialog) {
    if (auto* read_on = window.findChild<QLabel*>(QStringLiteral("readOnLbl"));
        read_on && read_on->text().contains(u':'))
        read_on->setText(QLatin1String(ANY_DAY));
    hide_folder(window);
    if (dialog)
        hide_folder(*dialog);
    picture_ = window.grab().toImage();
    complaints_ = broken_layout_rules(window);
    if (!dialog)
        return;
    QPainter painter(&picture_);
    paint_dialog(painter, *dialog, window.size());
    for (std::string& complaint : broken_layout_rules(*dialog))
        complaints_.push_back(std::move(complaint));
    if (dialog->height() + TITLE_HEIGHT > window.screen()->availableSize().height() ||
        dialog->width() > window.screen()->availableSize().width())
        complaints_.push_back("the dialog is larger than the screen");
}

const QImage& stage::picture() {
    if (picture_.isNull()) {
        settle();
        take_picture(dialog_);
    }
    return picture_;
}

#include "main_window.h"

#include "alerts.h"
#include "background_picture.h"
#include "bundle.h"
#include "chrome.h"
#include "export_window.h"
#include "Ks_lite_delegate.h"
#include "lookup_window.h"
#include "mac_toolies.h"
#include "rail_button.h"
#include "transports.h"
#include "user_defaults.h"

#include <QAction>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace {

constexpr char GEOMETRY_KEY[] = "window_geometry";
constexpr QSize DEFAULT_SIZE{1100, 720};
constexpr QSize SMALLEST_SIZE{800, 480}; // a screen of 1920 x 1080 at 200 %, with a panel
constexpr QSize FRAME{8, 40};            // the most that a window manager adds
constexpr int RAIL_WIDTH = 128;

// Offscreen there is neither a real screen nor a place to remember.
bool somebody_looks() {
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

} // namespace

main_window::main_window(Ks_lite_delegate& delegate) : delegate_(delegate) {
    setWindowTitle(QStringLiteral("Kestrom"));
    setWindowIcon(picture_icon(QStringLiteral(":/kestrom/images/kestrom.svg")));
    auto* whole = new QWidget(this);
    auto* row = new QHBoxLayout(whole);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(rail_ = build_rail());
    shade_rail();

    mainView = new QWidget(whole);
    mainView->setObjectName(QStringLiteral("mainView"));
    auto* holder = new QVBoxLayout(mainView);
    holder->setContentsMargins(0, 0, 0, 0);
    back_pic = new background_picture(ui_text(delegate, "ui_where_to_begin"), mainView);
    back_pic->setObjectName(QStringLiteral("back_pic"));
    holder->addWidget(back_pic);
    row->addWidget(mainView, 1);
    setCentralWidget(whole);

    build_menu();

    delegate_.set_main_view(mainView);
    delegate_.screen_changed = [this] { follow_screen(); };
    setMinimumSize(SMALLEST_SIZE);
    restore_place();
    follow_screen();
}

main_window::~main_window() {
    // The screen owns its view; this window must not destroy it as a child.
    if (screen_controller* screen = delegate_.current_screen())
        screen->view()->setParent(nullptr);
    delegate_.set_main_view(nullptr);
    delegate_.screen_changed = nullptr;
}

void main_window::offer_first_steps(std::function<void()> start_demo) {
    const auto step = [this](const char* name, std::string_view key, auto take) {
        auto* button = new QPushButton(ui_text(delegate_, key), back_pic);
        button->setObjectName(QLatin1String(name));
        button->setMinimumSize(20 * GRID, 5 * GRID);
        connect(button, &QPushButton::clicked, this, take);
        return button;
    };
    std::vector<QPushButton*> steps;
    for (const transport& way : transports())
        steps.push_back(step(way.first_step, way.first_step_key, [this, &way] {
            store_transport(way, delegate_.doors().defaults);
            delegate_.do_prefs();
        }));
    steps.push_back(step("startDemo", "ui_start_demo", [this, start = std::move(start_demo)] {
        start();
        delegate_.do_read_codes();
    }));
    back_pic->offer(steps);
}

void main_window::build_menu() {
    QMenu* file = menuBar()->addMenu(ui_text(delegate_, "ui_menu_file"));
    QAction* export_log = file->addAction(ui_text(delegate_, "ui_menu_export"));
    export_log->setObjectName(QStringLiteral("exportLog"));
    export_log->setShortcut(Qt::CTRL | Qt::Key_E);
    connect(export_log, &QAction::triggered, this, [this] {
        if (!export_window_)
            export_window_ = new export_window(delegate_, this);
        export_window_->open_beside();
    });
    QAction* look_up = file->addAction(ui_text(delegate_, "ui_menu_lookup"));
    look_up->setObjectName(QStringLiteral("lookUpCode"));
    look_up->setShortcut(Qt::CTRL | Qt::Key_L);
    connect(look_up, &QAction::triggered, this, [this] {
        if (!lookup_window_)
            lookup_window_ = new lookup_window(delegate_, this);
        lookup_window_->open_beside();
    });
    QAction* about = file->addAction(ui_text(delegate_, "ui_menu_about"));
    about->setObjectName(QStringLiteral("about"));
    connect(about, &QAction::triggered, this, [this] { show_about(); });
    file->addSeparator();
    QAction* quit = file->addAction(ui_text(delegate_, "ui_menu_quit"));
    quit->setShortcut(QKeySequence::Quit);
    connect(quit, &QAction::triggered, this, &QWidget::close);
}

void main_window::show_about() {
    const bundle& texts = delegate_.doors().resources;
    alert_request box;
    box.title = ui_text(delegate_, "ui_menu_about").remove(u'&').toStdString();
    box.message = "Kestrom " KESTROM_VERSION;
    box.informative = texts.localized("ui_about") + "\n\nQt " + qVersion();
    box.buttons = {texts.localized("ui_about_close")};
    box.style = alert_style::informational;
    delegate_.doors().message_boxes.show(box);
}

QWidget* main_window::build_rail() {
    auto* rail = new QWidget(this);
    rail->setObjectName(QStringLiteral("rail"));
    rail->setAutoFillBackground(true);
    rail->setMinimumWidth(RAIL_WIDTH);
    rail->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    auto* column = new QVBoxLayout(rail);
    column->setContentsMargins(GRID, GRID, GRID, GRID);
    column->setSpacing(GRID);

    switches_ = new QButtonGroup(this);
    auto make = [&](const char* name, const char* icon, std::string_view key) {
        auto* button = new rail_button(drawn_icon(icon), ui_text(delegate_, key), rail);
        button->setObjectName(QLatin1String(name));
        column->addWidget(button);
        return button;
    };
    auto make_switch = [&](const char* name, const char* icon, std::string_view key, auto choose) {
        auto* button = make(name, icon, key);
        button->setCheckable(true);
        switches_->addButton(button);
        connect(button, &QToolButton::clicked, this, choose);
    };
    make_switch(READ_CODES_VIEW, "codes", "ui_rail_codes", [this] { delegate_.do_read_codes(); });
    make_switch(ACTIONS_VIEW, "live", "ui_rail_live", [this] { delegate_.do_actions(); });
    make_switch(REPORT_VIEW, "report", "ui_rail_report", [this] { delegate_.do_report(); });
    auto* logs = make("logs", "logs", "ui_rail_logs");
    logs->setEnabled(false);
    logs->setToolTip(ui_text(delegate_, "ui_rail_logs_hint") + u'\n' +
                     QString::fromStdString(mac_toolies::sharedManager().log_folder()));
    connect(logs, &QToolButton::clicked, this, [this] { delegate_.do_logs(); });
    make_switch(EXPERT_VIEW, "expert", "ui_rail_expert", [this] { delegate_.do_expert(); });
    make_switch(PREFS_VIEW, "prefs", "ui_rail_prefs", [this] { delegate_.do_prefs(); });
    column->addStretch(1);
    auto* help = make("help", "help", "ui_rail_help");
    help->setShortcut(QKeySequence::HelpContents);
    connect(help, &QToolButton::clicked, this, [this] { delegate_.do_help_button(); });
    return rail;
}

// Slightly darker than the window in the desktop's current scheme.
void main_window::shade_rail() {
    QPalette quiet = QGuiApplication::palette();
    const QColor window = quiet.color(QPalette::Window);
    quiet.setColor(QPalette::Window, window.darker(window.lightness() < 128 ? 120 : 106));
    quiet.setColor(QPalette::Disabled, QPalette::ButtonText, unavailable_text(quiet));
    rail_->setPalette(quiet);
}

void main_window::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && rail_)
        shade_rail();
}

void main_window::follow_screen() {
    screen_controller* screen = delegate_.current_screen();
    back_pic->setVisible(!screen);
    const QString name = QString::fromStdString(delegate_.current_screen_name());
    for (QAbstractButton* button : switches_->buttons())
        button->setChecked(screen && button->objectName() == name);
    if (screen && screen->view()->focusProxy())
        screen->view()->setFocus();
}

// Restores its place, or the nearest visible one: the screen may have changed.
void main_window::restore_place() {
    const std::string stored = delegate_.doors().defaults.string(GEOMETRY_KEY);
    const bool known = !stored.empty() &&
                       restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)));
    const QRect room = screen()->availableGeometry();
    const QSize wanted = known ? size() : DEFAULT_SIZE;
    resize(somebody_looks() ? wanted.boundedTo(room.size() - FRAME) : wanted);
    if (known && size() != wanted && !isMaximized() && !isFullScreen())
        move(room.topLeft());
}

void main_window::closeEvent(QCloseEvent* event) {
    // A second close does not wait.
    if (isEnabled() && delegate_.restore_adapter_before([this] { close(); })) {
        setEnabled(false); // it takes some replies
        event->ignore();
        return;
    }
    // A window that was never shown has no place to remember.
    if (isVisible() && somebody_looks()) {
        delegate_.doors().defaults.set_string(GEOMETRY_KEY,
                                              saveGeometry().toBase64().toStdString());
        delegate_.doors().defaults.synchronize();
    }
    delegate_.applicationWillTerminate();
    event->accept();
}

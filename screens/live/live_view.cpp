#include "live_view.h"

#include "bundle.h"
#include "busy_indicator.h"
#include "chrome.h"
#include "display_text.h"
#include "Ks_lite_delegate.h"
#include "live_runs.h"
#include "status_line.h"
#include "thumbnail_strip.h"
#include "warning_label.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int ROOM_FOR_RATE = 1100; // in a narrower window the words of the row need it
constexpr int ZOOM_STEPS = 1000;
constexpr int BUTTON_SIZE = 6 * GRID;
constexpr double CELL_SHARE = 0.25; // of the large chart's width
constexpr int CELL_GAP = 2;

// As large as its round picture, which is aligned with the other rows.
class round_button final : public QToolButton {
  public:
    using QToolButton::QToolButton;
    QSize sizeHint() const override { return iconSize(); }
    QSize minimumSizeHint() const override { return iconSize(); }
};

void keep_room(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

} // namespace

live_view::live_view(Ks_lite_delegate& delegate, const block_units& units) : delegate_(delegate) {
    const screen_bones bones = make_screen_bones(delegate, "ui_live_title", true);
    root_.reset(bones.root);
    statusLbl_ = bones.status;
    waity_ = bones.waity;
    waity_->hide();
    build_controls(bones.title_row);
    build_log_mark(bones.content);
    build_panel(bones.content, units);
}

live_view::~live_view() = default;

void live_view::build_panel(QVBoxLayout* column, const block_units& units) {
    panel_ = new instrument_panel(units, root());
    build_strip();
    const auto make = [&](const char* name, QSizeF size, std::string_view key) {
        auto* view = new picture_view(QLatin1String(name), size, panel_);
        view->setAccessibleName(ui_text(delegate_, key));
        return view;
    };
    chartFull_ = make("chartFull", units.chart, "ui_live_chart");
    gauge_uno_ = make("gauge_uno", units.dial, "ui_live_dial_1");
    gauge_dos_ = make("gauge_dos", units.dial, "ui_live_dial_2");
    gauge_dos_->hide();
    panel_->rearranged = [this] {
        fit_thumbnails();
        if (on_resized)
            on_resized();
    };
    dial_hint_ = make_hint("dialHint", "ui_live_press_start", panel_);
    empty_strip_ = make_hint("emptyStrip", "ui_live_empty", panel_);
    follow_chart_ = new QCheckBox(ui_text(delegate_, "ui_live_follow"), panel_);
    follow_chart_->setObjectName(QStringLiteral("followChart"));
    follow_chart_->setToolTip(ui_text(delegate_, "ui_live_follow_hint"));
    QObject::connect(follow_chart_, &QCheckBox::toggled, root(), [this](bool on) {
        if (on_follow_chart)
            on_follow_chart(on);
    });
    panel_->set_parts(
        {xtopActionCharts_, chartFull_, {gauge_uno_, gauge_dos_}, dial_hint_, follow_chart_});
    column->addWidget(panel_, 1);
}

void live_view::build_controls(QHBoxLayout* row) {
    build_zoom(row);

    o2SwapBtn_ = new QToolButton(root());
    o2SwapBtn_->setObjectName(QStringLiteral("o2SwapBtn"));
    o2SwapBtn_->setText(ui_text(delegate_, "ui_live_next_sensors"));
    o2SwapBtn_->hide();
    QObject::connect(o2SwapBtn_, &QToolButton::clicked, root(), [this] { on_next_sensors(); });
    row->addWidget(o2SwapBtn_);

    auto* run_label = new QLabel(ui_text(delegate_, "ui_live_run"), root());
    runSelectorCombo_ = new QComboBox(root());
    runSelectorCombo_->setObjectName(QStringLiteral("runSelectorCombo"));
    runSelectorCombo_->setAccessibleName(ui_text(delegate_, "ui_live_run_hint"));
    for (const run_choice& choice : run_choices())
        runSelectorCombo_->addItem(ui_text(delegate_, choice.key));
    run_label->setBuddy(runSelectorCombo_);
    QObject::connect(runSelectorCombo_, &QComboBox::currentIndexChanged, root(), [this](int index) {
        if (on_run_selected)
            on_run_selected(index);
    });
    row->addSpacing(GRID);
    row->addWidget(run_label);
    row->addWidget(runSelectorCombo_);
    build_fast(row);
    build_more(row);
    row->addSpacing(GRID);

    startStopBtn_ = new round_button(root());
    startStopBtn_->setObjectName(QStringLiteral("startStopBtn"));
    startStopBtn_->setAutoRaise(true);
    startStopBtn_->setIconSize({BUTTON_SIZE, BUTTON_SIZE});
    startStopBtn_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    startStopBtn_->setFocusPolicy(Qt::StrongFocus);
    startStopBtn_->setShortcut(Qt::CTRL | Qt::Key_R);
    QObject::connect(startStopBtn_, &QToolButton::clicked, root(), [this] { on_start_stop(); });
    row->addWidget(startStopBtn_);
    root()->setFocusProxy(startStopBtn_);
    show_running(false);
}

void live_view::build_more(QHBoxLayout* row) {
    auto* more = new QToolButton(root());
    more->setObjectName(QStringLiteral("moreParameters"));
    more->setText(ui_text(delegate_, "ui_more_button"));
    more->setToolTip(ui_text(delegate_, "ui_more_hint"));
    more->setFocusPolicy(Qt::StrongFocus);
    QObject::connect(more, &QToolButton::clicked, root(), [this] { on_more_parameters(); });
    row->addWidget(more);
}

void live_view::build_fast(QHBoxLayout* row) {
    fast_ = new QCheckBox(ui_text(delegate_, "ui_fast"), root());
    fast_->setObjectName(QStringLiteral("fastSwitch"));
    QObject::connect(fast_, &QCheckBox::toggled, root(), [this](bool on) {
        if (on_fast)
            on_fast(on);
    });
    rate_ = new QLabel(root());
    rate_->setObjectName(QStringLiteral("sampleRate"));
    rate_->setTextFormat(Qt::PlainText);
    rate_->setForegroundRole(QPalette::PlaceholderText);
    rate_->setToolTip(ui_text(delegate_, "ui_fast_rate_hint"));
    row->addWidget(fast_);
    row->addWidget(rate_);
}

// With the length of the run beside it.
void live_view::build_zoom(QHBoxLayout* row) {
    length_ = new QLabel(root());
    length_->setObjectName(QStringLiteral("runLength"));
    length_->setToolTip(ui_text(delegate_, "ui_live_length"));
    length_->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(length_);
    row->addSpacing(GRID);
    auto* zoom_label = new QLabel(ui_text(delegate_, "ui_live_zoom"), root());
    charty_zoomer_ = new QSlider(Qt::Horizontal, root());
    charty_zoomer_->setObjectName(QStringLiteral("charty_zoomer"));
    charty_zoomer_->setRange(0, ZOOM_STEPS);
    charty_zoomer_->setValue(ZOOM_STEPS);
    charty_zoomer_->setPageStep(ZOOM_STEPS / 10);
    charty_zoomer_->setMinimumWidth(8 * GRID);
    charty_zoomer_->setMaximumWidth(18 * GRID);
    charty_zoomer_->setToolTip(ui_text(delegate_, "ui_live_zoom_hint"));
    charty_zoomer_->setAccessibleName(ui_text(delegate_, "ui_live_zoom_hint"));
    zoom_label->setBuddy(charty_zoomer_);
    zoom_label->setObjectName(QStringLiteral("zoomLabel"));
    for (QWidget* widget :
         {static_cast<QWidget*>(zoom_label), static_cast<QWidget*>(charty_zoomer_)}) {
        keep_room(widget);
        widget->hide();
        row->addWidget(widget);
    }
    QObject::connect(charty_zoomer_, &QSlider::valueChanged, root(), [this](int value) {
        if (on_zoom)
            on_zoom(static_cast<double>(value) / ZOOM_STEPS);
    });
}

void live_view::build_log_mark(QVBoxLayout* column) {
    log_mark_ = new warning_label(root());
    log_mark_->setObjectName(QStringLiteral("logMark"));
    log_mark_->setTextFormat(Qt::PlainText);
    log_mark_->setWordWrap(true);
    log_mark_->hide();
    column->addWidget(log_mark_);
}

void live_view::build_strip() {
    xtopActionCharts_ = new QScrollArea(panel_);
    xtopActionCharts_->setObjectName(QStringLiteral("xtopActionCharts"));
    xtopActionCharts_->setFrameShape(QFrame::NoFrame);
    xtopActionCharts_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    xtopActionCharts_->setFocusPolicy(Qt::NoFocus);
    thumbiesMtrx_ = new thumbnail_strip(nullptr);
    thumbiesMtrx_->setAccessibleName(ui_text(delegate_, "ui_live_strip"));
    thumbiesMtrx_->setToolTip(ui_text(delegate_, "ui_live_strip_hint"));
    xtopActionCharts_->setWidget(thumbiesMtrx_);
}

// What would fill an empty place.
QLabel* live_view::make_hint(const char* name, std::string_view key, QWidget* parent) const {
    auto* hint = new QLabel(ui_text(delegate_, key), parent);
    hint->setObjectName(QLatin1String(name));
    hint->setTextFormat(Qt::PlainText);
    hint->setAlignment(Qt::AlignCenter);
    hint->setForegroundRole(QPalette::PlaceholderText);
    hint->setWordWrap(true);
    hint->hide();
    return hint;
}

// Each a quarter of the large chart's width, so that the first four are above it.
void live_view::fit_thumbnails() {
    const int width = static_cast<int>(chartFull_->width() * CELL_SHARE - CELL_GAP);
    thumbiesMtrx_->set_cell_size({std::max(width, 1), panel_->layout_now().strip.height()});
    empty_strip_->resize(panel_->size());
}

void live_view::show_running(bool running) {
    const bundle& resources = delegate_.doors().resources;
    startStopBtn_->setIcon(
        picture_icon(display_text(resources.image_path(running ? "stop.svg" : "start.svg"))));
    const QString what = ui_text(delegate_, running ? "ui_live_stop" : "ui_live_start");
    startStopBtn_->setToolTip(what);
    startStopBtn_->setAccessibleName(what);
    if (running) // what to do next
        dial_hint_->setText(ui_text(delegate_, "ui_live_second_dial"));
    statusLbl_->set_selectable(!running); // replaced ten times a second
}

void live_view::show_waity(bool visible) {
    waity_->setVisible(visible);
}

void live_view::show_zoom(bool visible) {
    charty_zoomer_->setVisible(visible);
    root()->findChild<QLabel*>(QStringLiteral("zoomLabel"))->setVisible(visible);
}

void live_view::show_follow_chart(bool on) {
    const QSignalBlocker quiet(follow_chart_);
    follow_chart_->setChecked(on);
}

void live_view::show_length(const QString& length) {
    length_->setText(length);
}

void live_view::show_fast(bool on, bool enabled, std::string_view hint_key) {
    const QSignalBlocker quiet(fast_);
    fast_->setChecked(on);
    fast_->setEnabled(enabled);
    fast_hint_ = ui_text(delegate_, hint_key);
    fast_->setToolTip(fast_hint_);
}

void live_view::show_rate(const QString& rate) {
    const bool room = root()->width() >= ROOM_FOR_RATE;
    rate_->setText(room ? rate : QString());
    fast_->setToolTip(room || rate.isEmpty() ? fast_hint_ : rate + u'\n' + fast_hint_);
}

void live_view::reset_zoom() {
    const QSignalBlocker quiet(charty_zoomer_);
    charty_zoomer_->setValue(ZOOM_STEPS);
}

void live_view::show_second_dial(bool visible) {
    gauge_dos_->setVisible(visible);
    dial_hint_->setVisible(!visible && thumbiesMtrx_->cells() > 1);
}

void live_view::show_next_sensors(bool visible) {
    o2SwapBtn_->setVisible(visible);
}

void live_view::select_run(int index) {
    runSelectorCombo_->setCurrentIndex(index);
}

void live_view::set_thumbnails(const std::vector<QString>& names) {
    thumbiesMtrx_->renew(names);
    if (names.empty()) // what is shown belongs to another run
        for (picture_view* view : {chartFull_, gauge_uno_})
            view->set_image({});
    empty_strip_->setVisible(names.empty());
    show_second_dial(false);
    fit_thumbnails();
}

void live_view::scroll_to_thumbnail(int index) {
    xtopActionCharts_->horizontalScrollBar()->setValue(index * thumbiesMtrx_->cell_size().width());
}

void live_view::show_log_mark(const std::string& text) {
    log_mark_->setText(display_text(text));
    log_mark_->setVisible(!text.empty());
}

#include "expertCtrlr.h"

#include "busy_indicator.h"
#include "chrome.h"
#include "command_recall.h"
#include "display_text.h"
#include "globalVars.h"
#include "status_line.h"
#include "system_log.h"
#include "text.h"

#include <QApplication>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCursor>

#include <utility>

namespace {

constexpr int ECHO_POINT_SIZE = 14;
constexpr int TRANSCRIPT_CHARACTERS = 4'000'000;
constexpr int TRANSCRIPT_LINES = 20'000; // a monitored bus must not exhaust the memory
// Qt lays out the whole line again for every piece appended: a flood without line ends is broken
// into lines.
constexpr int LONGEST_LINE = 4'000;

// A blue that is legible on this background.
QColor echo_blue(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128 ? QColor(110, 160, 255)
                                                           : QColor(Qt::blue);
}

void append(QPlainTextEdit* view, const QString& text, const QTextCharFormat& format) {
    QTextCursor end(view->document());
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    if (end.block().length() > LONGEST_LINE)
        end.insertBlock();
    end.insertText(text, format);
    end.endEditBlock();
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
}

} // namespace

expertCtrlr::expertCtrlr(Ks_lite_delegate& delegate) : obd_screen(delegate) {
    const screen_bones bones = make_screen_bones(delegate, "ui_expert_title", true);
    root_.reset(bones.root);
    waity = bones.waity;
    use_status_line(*bones.status);

    replyTxt = new QPlainTextEdit(root_.get());
    replyTxt->setObjectName(QStringLiteral("replyTxt"));
    replyTxt->setReadOnly(true);
    replyTxt->setMaximumBlockCount(TRANSCRIPT_LINES);
    replyTxt->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    replyTxt->setPlaceholderText(ui_text(delegate, "ui_transcript_empty"));
    replyTxt->setAccessibleName(ui_text(delegate, "ui_transcript"));
    replyTxt->setTabChangesFocus(true);
    replyTxt->document()->setDocumentMargin(GRID);
    bones.content->addWidget(replyTxt, 1);

    auto* row = new QHBoxLayout;
    row->setSpacing(GRID);
    cmdTxt = new QLineEdit(root_.get());
    cmdTxt->setObjectName(QStringLiteral("cmdTxt"));
    cmdTxt->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    cmdTxt->setPlaceholderText(ui_text(delegate, "ui_command_hint"));
    cmdTxt->setAccessibleName(ui_text(delegate, "ui_command"));
    recall_ = std::make_unique<command_recall>(cmdTxt);
    auto* label = new QLabel(ui_text(delegate, "ui_command_label"), root_.get());
    label->setBuddy(cmdTxt);
    auto* send = new QPushButton(drawn_icon("send"), ui_text(delegate, "ui_send"), root_.get());
    send->setObjectName(QStringLiteral("sendBtn"));
    row->addWidget(label);
    row->addWidget(cmdTxt, 1);
    row->addWidget(send);
    bones.content->addLayout(row);
    root_->setFocusProxy(cmdTxt);

    QObject::connect(send, &QPushButton::clicked, root_.get(), [this] { clickSend(); });
    QObject::connect(cmdTxt, &QLineEdit::returnPressed, root_.get(), [this] { enterKey(); });
    awakeFromNib();
}

expertCtrlr::~expertCtrlr() = default;

void expertCtrlr::awakeFromNib() {
    begin_afresh();
    waity->hide();
}

void expertCtrlr::set_command(const std::string& text) {
    cmdTxt->setText(display_text(text));
}

void expertCtrlr::handle_a_send() {
    const std::string command = cmdTxt->text().toStdString();
    if (command.empty()) {
        toolies.myMsgBox("Missing", localized("blank_input_MSG"), "OK", "");
        return;
    }
    if (command.size() >
        LONGEST_CONSOLE_COMMAND) { // refused: part of a command may mean something else
        set_status_msg(localized("ui_command_too_long"));
        return;
    }
    send_requested_ = true;
    recall_->remember(cmdTxt->text());
    append_echo(command);
    cmdTxt->selectAll();
    cmdTxt->setFocus();
    if (!KS_delegate.openInterfaceConnection()) {
        // The transport calls work_current_task if the link comes up.
        send_requested_ = KS_delegate.link_coming_up();
        return;
    }
    set_status_msg("");
    work_current_task();
}

void expertCtrlr::work_current_task() {
    const std::string command = cmdTxt->text().toStdString();
    // The link may come up for a task of another screen. A lone carriage return would make the
    // adapter repeat its last command.
    if (!send_requested_ || command.empty() || command.size() > LONGEST_CONSOLE_COMMAND)
        return;
    waity->show();
    if (!KS_delegate.adapter_changed()) {
        sendOBDcmd(command + "\r");
        return;
    }
    // A fast run has left headers on and blanks off.
    KS_delegate.restore_adapter([this, command](bool) {
        if (send_requested_)
            sendOBDcmd(command + "\r");
    });
}

void expertCtrlr::handleOBDRcvdMsg(const std::string& text) {
    qCDebug(log_screens, "expertC:handleOBDRcvdMsg got the stuff%s", text.c_str());
    if (KS_delegate.restoring_adapter())
        return;
    if (takes_time_out(text))
        return; // the indicator stays until the next reply
    append_reply(text);
    waity->hide();
    if (received)
        received(text);
}

// A request is not sent over another link.
void expertCtrlr::leave_cur_op_gracefully(const std::string&) {
    send_requested_ = false;
    waity->hide();
}

void expertCtrlr::append_echo(const std::string& command) {
    QTextCharFormat format;
    QFont font = QApplication::font();
    font.setPointSize(ECHO_POINT_SIZE);
    format.setFont(font);
    format.setForeground(echo_blue(replyTxt->palette()));
    // If a reply stopped within a character, nothing more will come.
    append(replyTxt, display_text(std::exchange(half_letter_, {})) + display_text(command) + u'\n',
           format);
}

void expertCtrlr::append_reply(const std::string& chunk) {
    QTextCharFormat format;
    format.setFont(replyTxt->font());
    const std::string whole = half_letter_ + chunk;
    std::string_view text = whole;
    if (ended_with_return_ && text.starts_with('\n')) // a line end split between chunks
        text.remove_prefix(1);
    ended_with_return_ = whole.ends_with('\r');
    half_letter_ = text.substr(text.size() - unfinished_letter(text));
    text.remove_suffix(half_letter_.size());
    append(replyTxt, display_text(text), format);
    if (replyTxt->document()->characterCount() > TRANSCRIPT_CHARACTERS)
        replyTxt->clear(); // a flood without line ends
}

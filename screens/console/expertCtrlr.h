// The expert console: sends any adapter command and shows its raw answer in a transcript. No
// decoding and no task state: every send is one command, and every chunk is shown as it arrives.
#pragma once

#include "obd_screen.h"

#include <functional>
#include <memory>
#include <string>

class command_recall;
class QLineEdit;
class QPlainTextEdit;

// The command buffer holds 40 bytes: the text, a carriage return and the terminator.
inline constexpr std::size_t LONGEST_CONSOLE_COMMAND = 38;

class expertCtrlr final : public obd_screen {
  public:
    explicit expertCtrlr(Ks_lite_delegate& delegate);
    ~expertCtrlr() override;

    QWidget* view() override { return root_.get(); }
    void work_current_task() override;
    void handleOBDRcvdMsg(const std::string& text) override;
    void leave_cur_op_gracefully(const std::string& message) override;

    void clickSend() { handle_a_send(); }
    // Return in the field; leaving the field by mouse does not send.
    void enterKey() { handle_a_send(); }
    void set_command(const std::string& text);

    // Called with every received chunk except time-outs.
    std::function<void(const std::string&)> received;

  private:
    void awakeFromNib();
    void handle_a_send();
    void append_echo(const std::string& command);
    void append_reply(const std::string& chunk);

    std::unique_ptr<QWidget> root_;
    QLineEdit* cmdTxt = nullptr;
    QPlainTextEdit* replyTxt = nullptr;
    busy_indicator* waity = nullptr;
    std::unique_ptr<command_recall> recall_;
    bool send_requested_ = false;
    bool ended_with_return_ = false;
    std::string half_letter_; // from the end of the last chunk
};

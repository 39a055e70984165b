// The status line at the foot of every screen: plain text, elided to the height of two lines, with
// the whole text in the tooltip; selectable unless it changes too fast. The label's text is always
// the whole message.
#pragma once

#include <QLabel>

#include <string>

class status_line final : public QLabel {
  public:
    explicit status_line(QWidget* parent);
    void set_text(const std::string& message);
    void set_selectable(bool selectable);
};

// The line's place in a layout. A label requests a new layout of the whole screen for every text;
// this one has a fixed size and prevents that.
class status_place final : public QWidget {
  public:
    explicit status_place(QWidget* parent);
    status_line* line() const { return line_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    status_line* line_;
};

// The status line at the foot of every screen: plain text, elided to two lines' height with the
// whole text in the tooltip; selectable unless it changes too fast for that. The label's text is
// the message itself, whatever is visible of it.
#pragma once

#include <QLabel>

#include <string>

class status_line final : public QLabel {
  public:
    explicit status_line(QWidget* parent);
    void set_text(const std::string& message);
    void set_selectable(bool selectable);
};

// The line's place in a layout. A label asks for a new layout of the whole screen with every text;
// this one always takes the same room, and so stops it. Owned like any widget.
class status_place final : public QWidget {
  public:
    explicit status_place(QWidget* parent);
    status_line* line() const { return line_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    status_line* line_;
};

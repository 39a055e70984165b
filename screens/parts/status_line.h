// The status line at the foot of every screen: plain text, elided to two lines, with the whole text
// in the tooltip; selectable unless it changes too fast. text() is always the whole message.
#pragma once

#include <QLabel>

#include <string>

class status_line final : public QLabel {
  public:
    explicit status_line(QWidget* parent);
    void set_text(const std::string& message);
    void set_selectable(bool selectable);
};

// Holds the line in a layout with a fixed size: a label alone would make every new text lay out the
// whole screen again.
class status_place final : public QWidget {
  public:
    explicit status_place(QWidget* parent);
    status_line* line() const { return line_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    status_line* line_;
};

// The status line at the foot of every screen: selectable plain text, elided to two lines' height
// with the whole text in the tooltip. The label's text is the message itself, whatever is visible
// of it.
#pragma once

#include <QLabel>

#include <string>

class status_line final : public QLabel {
  public:
    explicit status_line(QWidget* parent);
    void set_text(const std::string& message);
};

// What the main view shows until a screen is chosen: the picture, and one line that says where to
// begin.
#pragma once

#include <QLabel>
#include <QPixmap>
#include <QWidget>

class background_picture final : public QWidget {
  public:
    background_picture(const QString& hint, QWidget* parent);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QLabel* hint_;
    QPixmap scaled_; // the drawing at the present size
};

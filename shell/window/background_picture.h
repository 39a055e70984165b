// What the main view shows until a screen is chosen: the picture, and one line that says where to
// begin. The picture is painted once the window is shown.
#pragma once

#include <QImage>
#include <QLabel>
#include <QTimer>
#include <QWidget>

#include <vector>

class QPushButton;

class background_picture final : public QWidget {
  public:
    background_picture(const QString& hint, QWidget* parent);

    // Shown in a row instead of the line.
    void offer(const std::vector<QPushButton*>& buttons);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void paint_scene();

    QLabel* hint_;
    QImage scene_; // the drawing as last painted, for one size
    QTimer later_;
};

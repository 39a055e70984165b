// One row of thumbnails, a cell each, of which one or more are selected: a click selects one, Shift
// extends to it, Ctrl toggles it; arrow keys, Home and End move, with Shift they extend, and the
// space bar toggles; the mouse wheel scrolls. The selection is never empty while there are cells.
// Pictures are stretched to their cell in both directions. Placed in a scroll area, which follows
// the current cell.
#pragma once

#include "spoken.h"

#include <QImage>
#include <QString>
#include <QWidget>

#include <functional>
#include <set>
#include <vector>

class QScrollArea;

class thumbnail_strip final : public QWidget, public spoken {
  public:
    explicit thumbnail_strip(QWidget* parent);

    // The user changed selected().
    std::function<void()> chosen;
    // Another part of the strip became visible.
    std::function<void()> exposed;

    // A cell in words, for its tooltip.
    std::function<QString(int cell)> describe_cell;

    // A cell for each name; the first is selected.
    void renew(const std::vector<QString>& names);
    int cells() const { return static_cast<int>(cells_.size()); }
    void set_cell_size(QSize size);
    QSize cell_size() const { return cell_size_; }
    // 32 bits per pixel, painted on ground().
    void set_picture(int cell, const QImage& picture);
    QColor ground() const;
    const std::set<int>& selected() const { return selected_; }
    // Like a click on the first of the cells, and Ctrl-clicks on the others; cells that do not
    // exist are ignored.
    void choose(const std::set<int>& these);
    // Whether any part of the cell is visible.
    bool in_sight(int cell) const;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    bool event(QEvent* event) override;

  private:
    struct one_cell {
        QString name;
        QImage picture;
    };
    QScrollArea* area() const;
    QRect rect_of(int cell) const;
    int cell_at(QPoint position) const;
    void extend_to(int cell);
    void toggle(int cell);
    void finish_choice(int current);

    std::vector<one_cell> cells_;
    QSize cell_size_{100, 83};
    std::set<int> selected_;
    int anchor_ = 0;  // where extending starts
    int current_ = 0; // where the keys are
};

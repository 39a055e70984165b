// The desktop's style, without reading icons that nothing shows yet: every menu bar asks for the
// arrow of its overflow when it is made, and for the first picture read Qt loads all its picture
// plugins. Owned by the application.
#pragma once

#include <QCommonStyle>
#include <QIconEngine>
#include <QProxyStyle>

class quick_style final : public QProxyStyle {
  public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (which == SP_ToolBarHorizontalExtensionButton)
            return QIcon(new late_icon(which));
        return QProxyStyle::standardIcon(which, option, widget);
    }

  private:
    // Read when it is painted.
    class late_icon final : public QIconEngine {
      public:
        explicit late_icon(StandardPixmap which) : which_(which) {}
        void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
                   QIcon::State state) override {
            QCommonStyle().standardIcon(which_).paint(painter, rect, Qt::AlignCenter, mode, state);
        }
        QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
            return QCommonStyle().standardIcon(which_).pixmap(size, mode, state);
        }
        QIconEngine* clone() const override { return new late_icon(which_); }

      private:
        StandardPixmap which_;
    };
};

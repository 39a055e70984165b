// The desktop's style with this program's few rules: headings of tables begin where the cells'
// texts do, buttons have air around their words, titles of groups are heavier than what they group,
// message boxes have the program's drawings, frames are whole at every scale. And without reading
// icons that nothing shows yet: every menu bar asks for the arrow of its overflow when it is made,
// and for the first picture read Qt loads all its picture plugins. Owned by the application.
#pragma once

#include "chrome.h"

#include <QCommonStyle>
#include <QIconEngine>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

#include <cmath>

class quick_style final : public QProxyStyle {
  public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        if (which == SP_ToolBarHorizontalExtensionButton)
            return QIcon(new late_icon(which));
        // Message boxes: the program's own drawings, sharp at every scale.
        if (which == SP_MessageBoxWarning)
            return picture_icon(QStringLiteral(":/kestrom/icons/warn.svg"));
        if (which == SP_MessageBoxQuestion)
            return drawn_icon("help");
        if (which == SP_MessageBoxInformation)
            return picture_icon(QStringLiteral(":/kestrom/images/kestrom.svg"));
        return QProxyStyle::standardIcon(which, option, widget);
    }

    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override {
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
        return metric == PM_HeaderMargin && header && header->orientation == Qt::Horizontal
                   ? CELL_MARGIN
                   : QProxyStyle::pixelMetric(metric, option, widget);
    }

    // At 150 % Fusion's frames would lie between two pixels, and lose a side or two.
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        const double scale = painter->device() ? painter->device()->devicePixelRatioF() : 1;
        const bool between = element == PE_Frame && scale != std::floor(scale) &&
                             baseStyle()->name() == QLatin1String("fusion");
        if (between) {
            painter->save();
            painter->setRenderHint(QPainter::Antialiasing);
            painter->translate(0.5, 0.5);
        }
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (between)
            painter->restore();
    }

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override {
        const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
        return type == CT_PushButton ? size + QSize(BUTTON_AIR, 0) : size;
    }

    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override {
        if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
            group && widget) {
            QStyleOptionGroupBox heavy = *group;
            heavy.fontMetrics = QFontMetrics(title_font(*widget));
            return QProxyStyle::subControlRect(control, &heavy, part, widget);
        }
        return QProxyStyle::subControlRect(control, option, part, widget);
    }

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override {
        if (control == CC_GroupBox && widget)
            painter->setFont(title_font(*widget));
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

  private:
    static constexpr int CELL_MARGIN = 7; // as the tables' cells have
    static constexpr int BUTTON_AIR = 8;

    static QFont title_font(const QWidget& widget) {
        QFont font = widget.font();
        font.setWeight(QFont::DemiBold);
        return font;
    }

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

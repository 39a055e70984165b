// The desktop's style with this program's few rules: headings of tables align with the text of the
// cells, buttons have padding, titles of groups are bolder than their contents, message boxes have
// the program's icons. Without a desktop style it uses Qt's own with flat parts (flat_parts). Owned
// by the application.
#pragma once

#include "chrome.h"
#include "flat_parts.h"

#include <QPainter>
#include <QProxyStyle>
#include <QStyleOption>

class quick_style final : public QProxyStyle {
  public:
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override {
        // Every new menu bar requests the arrow of its overflow, and for the first image Qt loads
        // all its image plugins, 2 ms. Ours has one menu.
        if (which == SP_ToolBarHorizontalExtensionButton)
            return {};
        // Message boxes: the program's own icons, sharp at every scale.
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
        if (metric == PM_HeaderMargin && header && header->orientation == Qt::Horizontal)
            return CELL_MARGIN;
        if (metric == PM_DefaultFrameWidth && is_flat())
            return ROUND_FRAME;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (!is_flat() || !flat_parts::draw(element, *option, *painter))
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (is_flat() && heading && element == CE_HeaderSection)
            flat_parts::draw_heading(*heading, *painter);
        else
            QProxyStyle::drawControl(element, option, painter, widget);
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
        const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (is_flat() && box && !box->editable)
            flat_parts::draw_combo_box(*option, *painter);
        else
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }

  private:
    static constexpr int CELL_MARGIN = 7; // that of table cells
    static constexpr int BUTTON_AIR = 8;
    static constexpr int ROUND_FRAME = 2; // keeps the contents clear of its corners

    // There is no desktop style.
    bool is_flat() const { return baseStyle()->name() == QLatin1String("fusion"); }

    static QFont title_font(const QWidget& widget) {
        QFont font = widget.font();
        font.setWeight(QFont::DemiBold);
        return font;
    }
};

// SPDX-License-Identifier: MIT
#include "AbissoraStyle.h"

#include "ControlPainting.h"
#include "Metrics.h"
#include "Painting.h"
#include "TypeScale.h"

#include <QAbstractItemView>
#include <algorithm>

// Places, sizes and behaviour; what is drawn there is in AbissoraStyle.cpp.
namespace abissora {

namespace {

constexpr int longestAnimation = 150; // milliseconds

} // namespace

QRect AbissoraStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const int padding = frame != nullptr && frame->lineWidth > 0 ? metrics::fieldPadding : 0;
        return visualRect(option->direction, option->rect, option->rect.adjusted(padding, 0, -padding, 0));
    }
    if (element == SE_ItemViewItemFocusRect)
        return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect AbissoraStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                    const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return fields::comboBoxPart(*combo, part);
        break;
    case CC_SpinBox:
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
            return fields::spinBoxPart(*spin, part);
        break;
    case CC_ScrollBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return bars::scrollBarPart(*bar, part);
        break;
    default:
        break;
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize AbissoraStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                      const QWidget* widget) const
{
    switch (type) {
    case CT_PushButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option); button != nullptr)
            return buttons::pushButtonSize(*button, widget);
        break;
    case CT_ToolButton: {
        const int side = controlHeight(option->fontMetrics);
        const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {std::max(base.width(), side), std::max(base.height(), side)};
    }
    case CT_LineEdit:
        return {size.width() + 2 * metrics::fieldPadding, controlHeight(option->fontMetrics)};
    case CT_ComboBox:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return fields::comboBoxSize(*combo, size);
        break;
    case CT_SpinBox:
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
            return fields::spinBoxSize(*spin, size);
        break;
    case CT_ItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            return itemviews::itemSize(*item, QProxyStyle::sizeFromContents(type, option, size, widget));
        break;
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menus::menuItemSize(*item, size);
        break;
    case CT_MenuBarItem:
        return {size.width() + 2 * metrics::spaceS, size.height() + metrics::spaceS};
    case CT_HeaderSection: {
        const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {base.width() + metrics::spaceM,
                std::max({base.height(), 32, 2 * option->fontMetrics.height() + metrics::spaceXS})};
    }
    default:
        break;
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int AbissoraStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_DefaultFrameWidth:
        // Wide enough for the rounded corner to lie outside the square viewport.
        if (fields::isTextEdit(widget))
            return 4;
        return qobject_cast<const QAbstractItemView*>(widget) != nullptr ? 3 : 1;
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_LineEditIconSize:
        return metrics::iconSize;
    case PM_LineEditIconMargin:
        return metrics::spaceS;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
        return buttons::checkBoxExtent;
    case PM_ScrollBarExtent:
        return bars::extent;
    case PM_ScrollBarSliderMin:
        return bars::shortestThumb;
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_SplitterWidth:
        return 7;
    case PM_HeaderMargin:
        return metrics::spaceXS;
    case PM_MenuPanelWidth:
    case PM_MenuBarPanelWidth:
        return 0;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return menus::margin;
    case PM_SubMenuOverlap:
        return 0;
    case PM_ToolTipLabelFrameWidth:
        return 7;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin:
        return metrics::spaceL;
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing:
        return metrics::spaceS;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int AbissoraStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                             QStyleHintReturn* returned) const
{
    switch (hint) {
    case SH_Widget_Animation_Duration:
        return std::min(longestAnimation, QProxyStyle::styleHint(hint, option, widget, returned));
    case SH_Menu_Mask:
        if (auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returned);
            mask != nullptr && option != nullptr && !windowsCanBeTranslucent()) {
            mask->region = roundedRegion(option->rect, metrics::controlRadius);
            return 1;
        }
        return 0;
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_ToolTip_Mask:
    case SH_ComboBox_AllowWheelScrolling: // a form scrolls, its values stay
    case SH_ScrollBar_LeftClickAbsolutePosition:
    case SH_ScrollView_FrameOnlyAroundContents:
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "AbissoraStyle.h"

#include "ButtonPainting.h"
#include "FieldPainting.h"
#include "IndicatorPainting.h"
#include "ItemViewPainting.h"
#include "MenuPainting.h"
#include "Metrics.h"
#include "Painting.h"
#include "SchemePalette.h"
#include "ScrollBarPainting.h"
#include "TypeScale.h"
#include "WindowShape.h"

#include <QAbstractItemView>
#include <QCommandLinkButton>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QStyleOption>
#include <QTextEdit>
#include <QToolButton>
#include <algorithm>

namespace abissora {

namespace {

constexpr int longestAnimation = 150; // milliseconds

bool isTextEdit(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) != nullptr || qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

void drawFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    if (isTextEdit(widget)) {
        fields::drawFieldPanel(option, painter);
        return;
    }
    const Tokens& tokens = Tokens::of(option.palette);
    const bool view = qobject_cast<const QAbstractItemView*>(widget) != nullptr;
    drawPanel(painter, option.rect, metrics::controlRadius, view ? tokens.surface : QColor(), tokens.border);
}

void drawSplitter(const QStyleOption& option, QPainter& painter)
{
    const Tokens& tokens = Tokens::of(option.palette);
    const QRect& rect = option.rect;
    // A handle of a horizontal splitter is upright.
    if (option.state & QStyle::State_Horizontal)
        drawVerticalHairline(painter, rect.top(), rect.bottom() + 1, rect.center().x(), tokens.border);
    else
        drawHorizontalHairline(painter, rect.left(), rect.right() + 1, rect.center().y(), tokens.border);
}

} // namespace

AbissoraStyle::AbissoraStyle()
    : QProxyStyle(QStringLiteral("Fusion"))
{
    setObjectName(QStringLiteral("abissora"));
}

void AbissoraStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (auto* const header = qobject_cast<QHeaderView*>(widget)) {
        header->setFont(font(TextStyle::CaptionSemibold));
    } else if (auto* const view = qobject_cast<QAbstractItemView*>(widget)) {
        // Base is the darker fill of fields; lists and tables stand on the surface of cards.
        if (view->viewport()->backgroundRole() == QPalette::Base)
            view->viewport()->setBackgroundRole(QPalette::Button);
        view->viewport()->setAttribute(Qt::WA_Hover);
    } else if (auto* const menu = qobject_cast<QMenu*>(widget)) {
        if (windowsCanBeTranslucent())
            menu->setAttribute(Qt::WA_TranslucentBackground);
    }
}

QPalette AbissoraStyle::standardPalette() const
{
    return paletteFor(Scheme::Light);
}

void AbissoraStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return buttons::drawPushButtonPanel(*button, *painter, widget);
        break;
    case PE_PanelButtonTool:
        return buttons::drawToolButtonPanel(*option, *painter, widget);
    case PE_FrameDefaultButton:
        return;
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0)
            fields::drawFieldPanel(*option, *painter);
        return;
    case PE_Frame:
        return drawFrame(*option, *painter, widget);
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) != nullptr)
            itemviews::drawItemFocus(*option, *painter, widget);
        else if (qobject_cast<const QToolButton*>(widget) == nullptr)
            drawFocusRing(*painter, option->rect, 4, option->palette);
        else if (showsFocusRing(*option))
            drawFocusRing(*painter, option->rect.adjusted(-3, -3, 3, 3), metrics::controlRadius, option->palette);
        return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return indicators::drawCheckBox(*option, *painter);
    case PE_IndicatorRadioButton:
        return indicators::drawRadioButton(*option, *painter);
    case PE_PanelItemViewRow:
        return;
    case PE_PanelItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option))
            return itemviews::drawItemPanel(*item, *painter);
        break;
    case PE_PanelMenu:
        return menus::drawMenuPanel(*option, *painter);
    case PE_FrameMenu:
        return;
    case PE_PanelTipLabel:
        return menus::drawToolTipPanel(*option, *painter);
    case PE_IndicatorArrowUp:
        return drawGlyph(*painter, option->rect, Glyph::ChevronUp, option->palette.color(QPalette::ButtonText), 8);
    case PE_IndicatorArrowDown:
        return drawGlyph(*painter, option->rect, Glyph::ChevronDown, option->palette.color(QPalette::ButtonText), 8);
    case PE_IndicatorArrowLeft:
        return drawGlyph(*painter, option->rect, Glyph::ChevronLeft, option->palette.color(QPalette::ButtonText), 8);
    case PE_IndicatorArrowRight:
        return drawGlyph(*painter, option->rect, Glyph::ChevronRight, option->palette.color(QPalette::ButtonText), 8);
    default:
        break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void AbissoraStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const
{
    switch (element) {
    case CE_PushButton:
        // Focus belongs to the panel; the base style would draw a second ring.
        proxy()->drawControl(CE_PushButtonBevel, option, painter, widget);
        proxy()->drawControl(CE_PushButtonLabel, option, painter, widget);
        return;
    case CE_PushButtonBevel:
        return proxy()->drawPrimitive(PE_PanelButtonCommand, option, painter, widget);
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option))
            return buttons::drawPushButtonLabel(*button, *painter, *this, widget);
        break;
    case CE_ComboBoxLabel:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return fields::drawComboBoxLabel(*combo, *painter, *this, widget);
        break;
    case CE_ItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option)) {
            const QStyleOptionViewItem inked = itemviews::withInk(*item);
            return QProxyStyle::drawControl(element, &inked, painter, widget);
        }
        break;
    case CE_HeaderSection:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            return itemviews::drawHeaderSection(*header, *painter);
        break;
    case CE_HeaderLabel:
        if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option))
            return itemviews::drawHeaderLabel(*header, *painter, *this, widget);
        break;
    case CE_HeaderEmptyArea:
        drawHorizontalHairline(*painter, option->rect.left(), option->rect.right() + 1,
                               option->rect.bottom() + 1 - hairlineWidth(*painter), Tokens::of(option->palette).border);
        return;
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menus::drawMenuItem(*item, *painter, *this, widget);
        break;
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menus::drawMenuBarItem(*item, *painter, *this, widget);
        break;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, Tokens::of(option->palette).window);
        return;
    case CE_MenuEmptyArea:
        return;
    case CE_Splitter:
        return drawSplitter(*option, *painter);
    case CE_ProgressBarGroove:
    case CE_ProgressBarLabel:
        return;
    case CE_ProgressBarContents:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option))
            return indicators::drawProgressBar(*bar, *painter);
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void AbissoraStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                       const QWidget* widget) const
{
    switch (control) {
    case CC_ComboBox:
        if (const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option))
            return fields::drawComboBox(*combo, *painter, widget);
        break;
    case CC_SpinBox:
        if (const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option))
            return fields::drawSpinBox(*spin, *painter);
        break;
    case CC_ScrollBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return scrollbars::draw(*bar, *painter);
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QRect AbissoraStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    if (element == SE_LineEditContents) {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        const int padding = frame != nullptr && frame->lineWidth > 0 ? metrics::fieldPadding : 0;
        return visualRect(option->direction, option->rect, option->rect.adjusted(padding, 0, -padding, 0));
    }
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
            return scrollbars::part(*bar, part);
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
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
            button && qobject_cast<const QCommandLinkButton*>(widget) == nullptr)
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
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            return menus::menuItemSize(*item, size);
        break;
    case CT_MenuBarItem:
        return {size.width() + 2 * metrics::spaceS, size.height() + metrics::spaceS};
    case CT_HeaderSection: {
        const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
        return {base.width() + metrics::spaceM, std::max(base.height(), withText(32, option->fontMetrics))};
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
        if (isTextEdit(widget))
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
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicators::boxSide;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return metrics::spaceS;
    case PM_ScrollBarExtent:
        return scrollbars::extent;
    case PM_ScrollBarSliderMin:
        return scrollbars::shortestThumb;
    case PM_ScrollView_ScrollBarSpacing:
        return 0;
    case PM_SplitterWidth:
        return 7;
    case PM_HeaderMargin:
        return metrics::spaceS;
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
    case SH_ToolTip_Mask:
        return 0;
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return 0;
    case SH_ScrollView_FrameOnlyAroundContents:
        return 0;
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
        return 0;
    case SH_ItemView_ShowDecorationSelected:
        return 1;
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
}

} // namespace abissora

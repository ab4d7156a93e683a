// SPDX-License-Identifier: MIT
#include "AbissoraStyle.h"

#include "ControlLook.h"
#include "ControlPainting.h"
#include "FocusCue.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "ReturnKey.h"
#include "Theme.h"
#include "TypeScale.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>

namespace abissora {

namespace {

void drawFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget)
{
    if (fields::isTextEdit(widget)) {
        fields::drawFieldPanel(option, painter, widget);
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
    : QProxyStyle(u"Fusion"_s)
    , m_returnKey(new ReturnKey(this))
{
    setObjectName(u"abissora"_s);
    qApp->installEventFilter(new FocusCue(this));
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
    } else if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        m_returnKey->attachTo(*button);
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
    case PE_IndicatorCheckBox:
        return buttons::drawCheckBox(*option, *painter);
    case PE_FrameDefaultButton:
    case PE_IndicatorHeaderArrow: // part of the header's label
        return;
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        if (const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option); frame && frame->lineWidth > 0)
            fields::drawFieldPanel(*option, *painter, widget);
        return;
    case PE_Frame:
        return drawFrame(*option, *painter, widget);
    case PE_FrameFocusRect:
        if (qobject_cast<const QAbstractItemView*>(widget) != nullptr)
            itemviews::drawItemFocus(*option, *painter, widget);
        else
            drawFocusRing(*painter, option->rect, 4, option->palette);
        return;
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
            return fields::drawComboBoxLabel(*combo, *painter, *this);
        break;
    case CE_ItemViewItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
            item && selectionLook(item->widget) == SelectionLook::Row) {
            itemviews::drawItemPanel(*item, *painter);
            const QStyleOptionViewItem content = itemviews::contentOf(*item);
            return QProxyStyle::drawControl(element, &content, painter, widget);
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
            return bars::drawProgressBar(*bar, *painter, widget);
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
            return fields::drawSpinBox(*spin, *painter, widget);
        break;
    case CC_ScrollBar:
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return bars::drawScrollBar(*bar, *painter);
        break;
    case CC_ToolButton:
        if (const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(option)) {
            proxy()->drawPrimitive(PE_PanelButtonTool, option, painter, widget);
            proxy()->drawControl(CE_ToolButtonLabel, button, painter, widget);
            if (showsFocusRing(*option))
                drawFocusRing(*painter, option->rect, metrics::controlRadius, option->palette);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace abissora

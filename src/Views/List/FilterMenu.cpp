// SPDX-License-Identifier: MIT
#include "FilterMenu.h"

#include "ControlLook.h"
#include "Labels.h"
#include "Literals.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"
#include "TypeScale.h"

#include <QActionGroup>
#include <QHelpEvent>
#include <QStyleOptionToolButton>
#include <QToolTip>

namespace abissora {

namespace {

constexpr int menuIconSize = 14;
constexpr int mostTextWidth = 320; // at the usual text size

/// A name is shown as it is, not with one of its letters underlined.
QString menuText(QString name)
{
    return name.replace(u'&', "&&"_L1);
}

} // namespace

FilterMenu::FilterMenu(QWidget* parent)
    : QMenu(parent)
{
    setObjectName(u"filterMenu"_s);
}

void FilterMenu::setEntries(const QList<EquipmentTypeModel>& types, const std::optional<QString>& active, bool canClear)
{
    clear();
    delete m_choices;
    m_choices = new QActionGroup(this); // one of them is marked
    const auto addChoice = [this](QAction* action, bool isChosen) {
        action->setCheckable(true);
        action->setChecked(isChosen);
        m_choices->addAction(action);
        return action;
    };
    connect(addChoice(addAction(u"Tutti"_s), !active), &QAction::triggered, this, &FilterMenu::allChosen);
    addSeparator();
    for (const EquipmentTypeModel& type : types) {
        const TypeAppearance look = appearanceOf(type);
        const int room = withText(mostTextWidth, fontMetrics());
        const QString text = fontMetrics().elidedText(type.name, Qt::ElideRight, room);
        QAction* action = addAction(typeIconForMenu(look.icon, menuIconSize, look.color), menuText(text));
        addChoice(action, active == type.name);
        if (text != type.name)
            action->setToolTip(toolTipText(type.name));
        connect(action, &QAction::triggered, this, [this, name = type.name] { Q_EMIT typeChosen(name); });
    }
    if (canClear) {
        addSeparator();
        connect(addAction(symbolIcon(u"xmark.circle"_s), u"Cancella filtri"_s), &QAction::triggered, this,
                &FilterMenu::clearChosen);
    }
}

bool FilterMenu::event(QEvent* event)
{
    // Only for names that are cut; the toolkit would show every entry's text.
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QAction* const entry = actionAt(help->pos());
        const bool isCut = entry != nullptr && entry->text().endsWith(u'…');
        QToolTip::showText(help->globalPos(), isCut ? entry->toolTip() : QString(), this);
        return true;
    }
    return QMenu::event(event);
}

FilterButton::FilterButton(FilterMenu& menu, QWidget* parent)
    : QToolButton(parent)
{
    const QString name = u"Filtro"_s;
    setIcon(symbolIcon(u"line.3.horizontal.decrease"_s));
    setAccessibleName(name);
    setToolTip(name);
    setPopupMode(InstantPopup);
    setMenu(&menu);
    setButtonLook(*this, ButtonLook::Plain);
}

void FilterButton::setActiveFilter(const QString& text)
{
    const bool isOn = !text.isEmpty();
    m_isOn = isOn;
    setIcon(isOn ? symbolIcon(u"line.3.horizontal.decrease"_s, NamedColor::blue)
                 : symbolIcon(u"line.3.horizontal.decrease"_s));
    setAccessibleDescription(text);
    setToolTip(isOn ? toolTipText(text) : accessibleName());
    update();
}

void FilterButton::initStyleOption(QStyleOptionToolButton* option) const
{
    QToolButton::initStyleOption(option);
    option->features &= ~QStyleOptionToolButton::HasMenu;
    option->state.setFlag(QStyle::State_On, m_isOn);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "SettingsGroups.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "EquipmentTypeViewModel.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "OneLine.h"
#include "Opening.h"
#include "ProgramFacts.h"
#include "SegmentedControl.h"
#include "ServiceInterval.h"
#include "SettingsGroupBox.h"
#include "Stepper.h"
#include "TypeManagement.h"
#include "VisibleUpdate.h"

#include <QLineEdit>
#include <limits>

namespace abissora {

namespace {

constexpr int currencyWidth = 90;

class InformationGroup final : public SettingsGroupBox
{
public:
    InformationGroup(const ProgramFacts& program, EquipmentTypeViewModel& types, Opener& opener)
        : SettingsGroupBox(u"Informazioni"_s, u"info.circle"_s)
        , m_program(program)
        , m_types(types)
        , m_update([this] { redraw(); })
    {
        for (const ProgramFact& fact : program.all())
            m_facts.append(addInformation(fact.label));
        m_available = addInformation(u"Tipologie disponibili"_s);
        content()->addWidget(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText,
                                           u"Icone: Game Icons (CC BY 3.0), MDI, Icon-Park, Lucide"_s));
        content()->addLayout(makeWebsiteLine(opener));
        connect(&types, &EquipmentTypeViewModel::changed, &m_update, &CoalescedUpdate::schedule);
        redraw();
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        redraw(); // the year and the file's date may have moved on since
        SettingsGroupBox::showEvent(event);
    }

private:
    [[nodiscard]] QLayout* makeWebsiteLine(Opener& opener)
    {
        const QUrl address = m_program.product.websiteURL;
        const QString caption = u"— sito dell'applicazione"_s;
        auto* link = named(new LinkButton(address.host()), u"website");
        setAccessibleLink(*link);
        link->setAccessibleDescription(caption);
        connect(link, &QAbstractButton::clicked, this, [this, address, &opener] { openPage(address, opener, *this); });
        const Gap ownPadding{-metrics::spaceXS};
        return inRow(0, {ownPadding, link, {new InkLabel(TextStyle::Body, &Tokens::secondaryText, caption), 1}});
    }

    void redraw()
    {
        const QList<ProgramFact> facts = m_program.all();
        for (qsizetype i = 0; i < facts.size(); ++i)
            m_facts.at(i)->setValue(facts.at(i).value);
        m_available->setValue(QString::number(m_types.filteredTypes().size()));
    }

    ProgramFacts m_program;
    EquipmentTypeViewModel& m_types;
    QList<SettingsInfoRow*> m_facts;
    SettingsInfoRow* m_available = nullptr;
    CoalescedUpdate m_update;
};

/// Shows the stored value at once and whenever one changes.
template <typename Redraw>
void follow(SettingsViewModel& settings, SettingsGroupBox* group, Redraw redraw)
{
    redraw();
    QObject::connect(&settings, &SettingsViewModel::changed, group, redraw);
}

} // namespace

SettingsGroupBox* makeTypesGroup(EquipmentTypeViewModel& types, const std::function<void()>& manage)
{
    auto* group = new SettingsGroupBox(u"Tipologie Attrezzatura"_s, u"list.bullet"_s);
    group->addText(u"Gestisci le tipologie di attrezzatura disponibili per la categorizzazione"_s);
    auto* count = named(new InkLabel(TextStyle::Body, &Tokens::secondaryText), u"activeTypes");
    auto* button = named(new PlainButton(u"Gestisci Tipologie"_s, u"pencil.circle"_s), u"manageTypes");
    group->addLine(count, button);
    QObject::connect(button, &QAbstractButton::clicked, group, manage);

    const auto redraw = [count, &types] { count->setText(activeTypesText(types.filteredTypes().size())); };
    auto* update = new CoalescedUpdate(redraw, group);
    QObject::connect(&types, &EquipmentTypeViewModel::changed, update, &CoalescedUpdate::schedule);
    redraw();
    return group;
}

SettingsGroupBox* makeNotificationsGroup(SettingsViewModel& settings)
{
    auto* group = new SettingsGroupBox(u"Notifiche"_s, u"bell"_s);
    group->addSwitch(u"Abilita Notifiche"_s, u"notificationsEnabled"_s, settings,
                     &SettingsViewModel::notificationsEnabled, &SettingsViewModel::setNotificationsEnabled);
    auto* days = named(new Stepper, u"reminderDays");
    days->setRange(7, 90);
    days->setSingleStep(7);
    days->setSuffix(u" giorni"_s);
    group->addLine(u"Giorni di anticipo"_s, days);
    follow(settings, group, [days, &settings] { days->setValue(settings.reminderDays()); });
    QObject::connect(days, &Stepper::edited, &settings, &SettingsViewModel::setReminderDays);
    return group;
}

SettingsGroupBox* makeGeneralGroup(SettingsViewModel& settings)
{
    auto* interval = named(new SegmentedControl(SegmentedControl::Purpose::Choice), u"defaultServiceInterval");
    for (const ServiceInterval& offered : offeredIntervals)
        interval->addSegment(offered.text);
    auto* currency = named(new QLineEdit, u"currencySymbol");
    keepOneLine(*currency);
    currency->setMaxLength(std::numeric_limits<int>::max()); // what is stored shall not be shortened
    currency->setPlaceholderText(u"Simbolo"_s);
    currency->setFixedWidth(withText(currencyWidth, currency->fontMetrics()));
    auto* group = new SettingsGroupBox(u"Impostazioni Generali"_s, u"gear"_s);
    group->addLine(u"Intervallo Tagliando Default"_s, interval);
    group->addLine(u"Simbolo Valuta"_s, currency);
    follow(settings, group, [interval, currency, &settings] {
        interval->setCurrentIndex(placeOfInterval(settings.defaultServiceInterval()));
        if (const QString symbol = settings.currencySymbol(); currency->text() != symbol)
            setStoredText(*currency, symbol);
    });
    QObject::connect(interval, &SegmentedControl::activated, &settings, [&settings](int segment) {
        settings.setDefaultServiceInterval(offeredIntervals.at(segment).days);
    });
    // Not textEdited, which leaves out what a screen reader puts in.
    QObject::connect(currency, &QLineEdit::textChanged, &settings, [&settings](const QString& symbol) {
        if (symbol != settings.currencySymbol())
            settings.setCurrencySymbol(symbol);
    });
    return group;
}

SettingsGroupBox* makeAppearanceGroup(SettingsViewModel& settings)
{
    auto* group = new SettingsGroupBox(u"Aspetto"_s, u"paintbrush"_s);
    group->addSwitch(u"Modalità Scura"_s, u"darkMode"_s, settings, &SettingsViewModel::darkMode,
                     &SettingsViewModel::setDarkMode);
    return group;
}

SettingsGroupBox* makeHelpGroup(const std::function<void()>& open)
{
    auto* group = new SettingsGroupBox(u"Aiuto"_s, u"book"_s);
    group->addText(u"Guida all'uso completa del programma: funzioni, manutenzioni, allegati PDF e domande frequenti"_s);
    auto* button = named(new PlainButton(u"Apri la Guida"_s, u"book.fill"_s), u"openHelp");
    group->addButton(button);
    QObject::connect(button, &QAbstractButton::clicked, group, open);
    return group;
}

SettingsGroupBox* makeInformationGroup(const ProgramFacts& program, EquipmentTypeViewModel& types, Opener& opener)
{
    return new InformationGroup(program, types, opener);
}

SettingsGroupBox* makeRestoreGroup(const std::function<void()>& reset)
{
    auto* group = new SettingsGroupBox(u"Ripristino"_s, u"arrow.counterclockwise"_s);
    auto* button = named(new DestructiveButton(u"Ripristina Impostazioni Default"_s), u"resetSettings");
    group->addButton(button);
    group->addExplanation(u"Ripristina tutte le impostazioni ai valori predefiniti"_s, button);
    QObject::connect(button, &QAbstractButton::clicked, group, reset);
    return group;
}

} // namespace abissora

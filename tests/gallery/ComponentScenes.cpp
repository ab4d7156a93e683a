// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "Scenes.h"

#include "Buttons.h"
#include "Cards.h"
#include "Chip.h"
#include "EmptyState.h"
#include "FormRow.h"
#include "IconViews.h"
#include "Metrics.h"
#include "ProgressIndicator.h"
#include "SearchField.h"
#include "SegmentedControl.h"
#include "StatCard.h"
#include "Stepper.h"
#include "SymbolIcon.h"
#include "ToggleSwitch.h"
#include "TypeScale.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace abissora::gallery {

namespace {

SegmentedControl* intervals(int current)
{
    auto* control = new SegmentedControl(SegmentedControl::Purpose::Choice);
    for (const auto* text : {"6 Mesi", "1 Anno", "2 Anni"})
        control->addSegment(QString::fromUtf8(text));
    control->setCurrentIndex(current);
    return control;
}

QHBoxLayout* row(const QString& text, QWidget* control)
{
    auto* layout = new QHBoxLayout;
    auto* label = new QLabel(text);
    label->setBuddy(control);
    layout->addWidget(label);
    layout->addStretch();
    layout->addWidget(control);
    return layout;
}

std::unique_ptr<QWidget> settings()
{
    auto scene = std::make_unique<QWidget>();
    scene->setMinimumWidth(560);
    auto* layout = new QVBoxLayout(scene.get());
    auto* notifications = new GroupBox(u"Notifiche"_s, u"bell"_s);
    auto* on = new ToggleSwitch(u"Abilita Notifiche"_s);
    on->setChecked(true);
    notifications->content()->addWidget(on);
    auto* stepper = new Stepper;
    stepper->setRange(7, 90);
    stepper->setSingleStep(7);
    stepper->setSuffix(u" giorni"_s);
    stepper->setValue(30);
    notifications->content()->addLayout(row(u"Giorni di anticipo"_s, stepper));
    notifications->content()->addWidget(new ToggleSwitch(u"Controlla aggiornamenti all'avvio"_s));
    auto* disabled = new ToggleSwitch(u"Non disponibile"_s);
    disabled->setChecked(true);
    disabled->setEnabled(false);
    notifications->content()->addWidget(disabled);
    layout->addWidget(notifications);

    auto* general = new GroupBox(u"Impostazioni Generali"_s, u"gear"_s);
    general->content()->addLayout(row(u"Intervallo Tagliando Default"_s, intervals(1)));
    general->content()->addLayout(row(u"Nessuna scelta"_s, intervals(-1)));
    auto* off = intervals(0);
    off->setEnabled(false);
    general->content()->addLayout(row(u"Spento"_s, off));
    auto* state = new IconLabel(symbolIcon(u"checkmark.circle"_s, NamedColor::green), u"Hai già l'ultima versione"_s);
    auto* busy = new QHBoxLayout;
    busy->addWidget(new PlainButton(u"Controlla aggiornamenti ora"_s));
    busy->addWidget(new ProgressIndicator);
    busy->addWidget(state);
    busy->addStretch();
    general->content()->addLayout(busy);
    layout->addWidget(general);
    return scene;
}

std::unique_ptr<QWidget> list()
{
    auto scene = std::make_unique<QWidget>();
    scene->setMinimumWidth(760);
    auto* layout = new QVBoxLayout(scene.get());
    auto* tabs = new SegmentedControl;
    tabs->addSegment(u"list.bullet"_s, u"Attrezzatura"_s);
    tabs->addSegment(u"wrench"_s, u"Manutenzione"_s);
    tabs->addSegment(u"chart.bar"_s, u"Statistiche"_s);
    tabs->setCurrentIndex(0);
    layout->addWidget(tabs, 0, Qt::AlignHCenter);

    auto* header = new QHBoxLayout;
    auto* title = new QLabel(u"Attrezzatura Subacquea"_s);
    title->setFont(font(TextStyle::Title));
    header->addWidget(title);
    auto* chip = new Chip;
    chip->setIcon(typeIcon(u"dive.bcd"_s, NamedColor::orange));
    chip->setText(u"Filtro: GAV"_s);
    header->addWidget(chip);
    header->addStretch();
    auto* refresh = new PlainButton(u"Aggiorna"_s);
    refresh->setSymbol(u"arrow.clockwise"_s);
    header->addWidget(refresh);
    auto* add = new PrimaryButton(u"Aggiungi"_s);
    add->setSymbol(u"plus"_s);
    header->addWidget(add);
    layout->addLayout(header);

    layout->addWidget(new SearchField(u"Cerca attrezzatura..."_s));
    auto* filled = new SearchField(u"Cerca attrezzatura..."_s);
    filled->setText(u"gav"_s);
    layout->addWidget(filled);

    auto* card = new Card;
    for (const NamedColor color : {NamedColor::cyan, NamedColor::orange}) {
        auto* entry = new QHBoxLayout;
        auto* tile = new IconTile;
        tile->setIcon(typeIcon(u"dive.computer"_s, color), color);
        entry->addWidget(tile);
        entry->addWidget(new QLabel(u"Computer Suunto EON Core"_s));
        entry->addStretch();
        entry->addWidget(new PrimaryButton(u"Aggiungi Manutenzione"_s));
        entry->addWidget(new PlainButton(u"Dettagli"_s));
        card->content()->addLayout(entry);
        card->content()->addWidget(new Separator(Separator::Weight::Divider));
    }
    layout->addWidget(card);

    auto* empty = new EmptyState(u"tray"_s, u"Nessuna attrezzatura trovata"_s);
    empty->setButtonText(u"Cancella filtri"_s);
    layout->addWidget(empty);
    return scene;
}

std::unique_ptr<QWidget> statistics()
{
    auto scene = std::make_unique<QWidget>();
    scene->setMinimumWidth(720);
    auto* layout = new QHBoxLayout(scene.get());
    layout->setSpacing(metrics::spaceL);
    const auto add = [layout](const QString& title, const QString& symbol, NamedColor color, const QString& value) {
        auto* card = new StatCard(title, symbol, color);
        card->setValue(value);
        layout->addWidget(card);
    };
    add(u"Totale Articoli"_s, u"folder.fill"_s, NamedColor::blue, u"7"_s);
    add(u"Manutenzioni Scadute"_s, u"exclamationmark.triangle.fill"_s, NamedColor::red, u"11"_s);
    add(u"In Regola"_s, u"checkmark.circle.fill"_s, NamedColor::green, u"1234"_s);
    return scene;
}

} // namespace

QList<Scene> componentScenes()
{
    return {{u"component-settings"_s, settings}, {u"component-list"_s, list}, {u"component-statistics"_s, statistics}};
}

} // namespace abissora::gallery

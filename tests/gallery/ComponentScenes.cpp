// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Badge.h"
#include "Buttons.h"
#include "Chip.h"
#include "EmptyState.h"
#include "FormRow.h"
#include "GroupBox.h"
#include "IconLabel.h"
#include "IconTile.h"
#include "Metrics.h"
#include "ProgressIndicator.h"
#include "SearchField.h"
#include "SegmentedControl.h"
#include "Separator.h"
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
    auto* notifications = new GroupBox(QStringLiteral("Notifiche"), QStringLiteral("bell"));
    auto* on = new ToggleSwitch(QStringLiteral("Abilita Notifiche"));
    on->setChecked(true);
    notifications->content()->addWidget(on);
    auto* stepper = new Stepper;
    stepper->setRange(7, 90);
    stepper->setSingleStep(7);
    stepper->setSuffix(QStringLiteral(" giorni"));
    stepper->setValue(30);
    notifications->content()->addLayout(row(QStringLiteral("Giorni di anticipo"), stepper));
    notifications->content()->addWidget(new ToggleSwitch(QStringLiteral("Controlla aggiornamenti all'avvio")));
    auto* disabled = new ToggleSwitch(QStringLiteral("Non disponibile"));
    disabled->setChecked(true);
    disabled->setEnabled(false);
    notifications->content()->addWidget(disabled);
    layout->addWidget(notifications);

    auto* general = new GroupBox(QStringLiteral("Impostazioni Generali"), QStringLiteral("gear"));
    general->content()->addLayout(row(QStringLiteral("Intervallo Tagliando Default"), intervals(1)));
    general->content()->addLayout(row(QStringLiteral("Nessuna scelta"), intervals(-1)));
    auto* off = intervals(0);
    off->setEnabled(false);
    general->content()->addLayout(row(QStringLiteral("Spento"), off));
    auto* state = new IconLabel(symbolIcon(QStringLiteral("checkmark.circle"), NamedColor::green),
                                QStringLiteral("Hai già l'ultima versione"));
    auto* busy = new QHBoxLayout;
    busy->addWidget(new PlainButton(QStringLiteral("Controlla aggiornamenti ora")));
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
    tabs->addSegment(QStringLiteral("list.bullet"), QStringLiteral("Attrezzatura"));
    tabs->addSegment(QStringLiteral("wrench"), QStringLiteral("Manutenzione"));
    tabs->addSegment(QStringLiteral("chart.bar"), QStringLiteral("Statistiche"));
    tabs->setCurrentIndex(0);
    layout->addWidget(tabs, 0, Qt::AlignHCenter);

    auto* header = new QHBoxLayout;
    auto* title = new QLabel(QStringLiteral("Attrezzatura Subacquea"));
    title->setFont(font(TextStyle::Title));
    header->addWidget(title);
    auto* chip = new Chip;
    chip->setIcon(typeIcon(QStringLiteral("dive.bcd"), NamedColor::orange));
    chip->setText(QStringLiteral("Filtro: GAV"));
    header->addWidget(chip);
    auto* badge = new Badge;
    header->addWidget(badge);
    badge->setCount(3);
    header->addStretch();
    auto* refresh = new PlainButton(QStringLiteral("Aggiorna"));
    refresh->setSymbol(QStringLiteral("arrow.clockwise"));
    header->addWidget(refresh);
    auto* add = new PrimaryButton(QStringLiteral("Aggiungi"));
    add->setSymbol(QStringLiteral("plus"));
    header->addWidget(add);
    layout->addLayout(header);

    layout->addWidget(new SearchField(QStringLiteral("Cerca attrezzatura...")));
    auto* filled = new SearchField(QStringLiteral("Cerca attrezzatura..."));
    filled->setText(QStringLiteral("gav"));
    layout->addWidget(filled);

    auto* card = new Card;
    for (const NamedColor color : {NamedColor::cyan, NamedColor::orange}) {
        auto* entry = new QHBoxLayout;
        auto* tile = new IconTile;
        tile->setIcon(typeIcon(QStringLiteral("dive.computer"), color), color);
        entry->addWidget(tile);
        entry->addWidget(new QLabel(QStringLiteral("Computer Suunto EON Core")));
        entry->addStretch();
        entry->addWidget(new PrimaryButton(QStringLiteral("Aggiungi Manutenzione")));
        entry->addWidget(new PlainButton(QStringLiteral("Dettagli")));
        card->content()->addLayout(entry);
        card->content()->addWidget(new Separator(Separator::Weight::Divider));
    }
    layout->addWidget(card);

    auto* empty = new EmptyState(QStringLiteral("tray"), QStringLiteral("Nessuna attrezzatura trovata"));
    empty->setButtonText(QStringLiteral("Cancella filtri"));
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
    add(QStringLiteral("Totale Articoli"), QStringLiteral("folder.fill"), NamedColor::blue, QStringLiteral("7"));
    add(QStringLiteral("Manutenzioni Scadute"), QStringLiteral("exclamationmark.triangle.fill"), NamedColor::red,
        QStringLiteral("11"));
    add(QStringLiteral("In Regola"), QStringLiteral("checkmark.circle.fill"), NamedColor::green,
        QStringLiteral("1234"));
    return scene;
}

} // namespace

QList<Scene> componentScenes()
{
    return {{QStringLiteral("component-settings"), settings},
            {QStringLiteral("component-list"), list},
            {QStringLiteral("component-statistics"), statistics}};
}

} // namespace abissora::gallery

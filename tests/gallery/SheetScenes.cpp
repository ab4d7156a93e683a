// SPDX-License-Identifier: MIT
#include "Scenes.h"

#include "Alert.h"
#include "Buttons.h"
#include "FormRow.h"
#include "GroupBox.h"
#include "Sheet.h"
#include "Stepper.h"
#include "SymbolIcon.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace abissora::gallery {

namespace {

QLineEdit* field(const QString& placeholder)
{
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(placeholder);
    return edit;
}

QDateEdit* dateField()
{
    auto* date = new QDateEdit(QDate(2026, 11, 21));
    date->setDisplayFormat(QStringLiteral("dd/MM/yyyy"));
    date->setCalendarPopup(true);
    date->setFixedWidth(170);
    return date;
}

std::unique_ptr<QWidget> form()
{
    auto sheet = std::make_unique<Sheet>(QStringLiteral("Nuova Attrezzatura"));
    sheet->setPrimaryText(QStringLiteral("Salva"));
    auto* general = new GroupBox(QStringLiteral("Informazioni Generali"));
    general->content()->addWidget(new FormRow(QStringLiteral("Nome*"), field(QStringLiteral("Inserisci il nome"))));
    auto* type = new QComboBox;
    type->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    type->addItem(symbolIcon(QStringLiteral("dive.regulator"), NamedColor::blue), QStringLiteral("Erogatore"));
    general->content()->addWidget(new FormRow(QStringLiteral("Tipo*"), type));
    sheet->body()->addWidget(general);

    auto* details = new GroupBox(QStringLiteral("Dettagli Tecnici"));
    details->content()->addWidget(new FormRow(QStringLiteral("Marca*"), field(QStringLiteral("Inserisci la marca"))));
    auto* interval = new FormRow(QStringLiteral("Intervallo Tagliando"), [] {
        auto* stepper = new Stepper;
        stepper->setRange(30, 730);
        stepper->setSuffix(QStringLiteral(" giorni"));
        stepper->setValue(365);
        return stepper;
    }());
    interval->setHint(QStringLiteral("* Campo obbligatorio"));
    details->content()->addWidget(interval);
    details->content()->addWidget(new FormRow(QStringLiteral("Data Acquisto"), dateField()));
    details->content()->addWidget(
        new FormRow(QStringLiteral("Prossimo Tagliando"), new QLabel(QStringLiteral("21 nov 2027"))));
    details->content()->addWidget(new FormRow(QString(), new QCheckBox(QStringLiteral("Attivo"))));
    sheet->body()->addWidget(details);

    auto* notes = new GroupBox(QStringLiteral("Note"));
    auto* text = new QPlainTextEdit;
    text->setFixedHeight(80);
    notes->content()->addWidget(text);
    sheet->body()->addWidget(notes);
    sheet->body()->addStretch();
    return sheet;
}

std::unique_ptr<QWidget> destructive()
{
    auto alert = std::make_unique<Alert>();
    alert->setTitle(QStringLiteral("Conferma Eliminazione"));
    alert->setMessage(QStringLiteral("Sei sicuro di voler eliminare l'attrezzatura 'Computer Suunto EON Core'? Questa "
                                     "azione non può essere annullata."));
    return alert;
}

std::unique_ptr<QWidget> notice()
{
    auto alert = std::make_unique<Alert>();
    alert->setTitle(QStringLiteral("Errore"));
    alert->setMessage(QStringLiteral("Per favore, compila tutti i campi obbligatori."));
    alert->makeNotice();
    return alert;
}

} // namespace

QList<Scene> sheetScenes()
{
    return {{QStringLiteral("component-sheet"), form},
            {QStringLiteral("component-alert"), destructive},
            {QStringLiteral("component-notice"), notice}};
}

} // namespace abissora::gallery

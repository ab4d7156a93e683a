// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "Scenes.h"

#include "Alert.h"
#include "Buttons.h"
#include "Cards.h"
#include "FormRow.h"
#include "NoAnswerAlert.h"
#include "ProgressSheet.h"
#include "Sheet.h"
#include "Stepper.h"
#include "SymbolIcon.h"
#include "ToggleSwitch.h"

#include <QComboBox>
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

std::unique_ptr<QWidget> sheetWithForm()
{
    auto sheet = std::make_unique<Sheet>(u"Nuova Attrezzatura"_s);
    sheet->setPrimaryText(u"Salva"_s);
    auto* general = new GroupBox(u"Informazioni Generali"_s);
    general->content()->addWidget(new FormRow(u"Nome*"_s, field(u"Inserisci il nome"_s)));
    auto* type = new QComboBox;
    type->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    type->addItem(symbolIcon(u"dive.regulator"_s, NamedColor::blue), u"Erogatore"_s);
    general->content()->addWidget(new FormRow(u"Tipo*"_s, type));
    sheet->body()->addWidget(general);

    auto* details = new GroupBox(u"Dettagli Tecnici"_s);
    details->content()->addWidget(new FormRow(u"Marca*"_s, field(u"Inserisci la marca"_s)));
    auto* interval = new FormRow(u"Intervallo Tagliando"_s, [] {
        auto* stepper = new Stepper;
        stepper->setRange(30, 730);
        stepper->setSuffix(u" giorni"_s);
        stepper->setValue(365);
        return stepper;
    }());
    interval->setHint(u"* Campo obbligatorio"_s);
    details->content()->addWidget(interval);
    details->content()->addWidget(new FormRow(u"Prossimo Tagliando"_s, new QLabel(u"21 nov 2027"_s)));
    details->content()->addWidget(new FormRow(QString(), new ToggleSwitch(u"Attivo"_s)));
    sheet->body()->addWidget(details);

    auto* notes = new GroupBox(u"Note"_s);
    auto* text = new QPlainTextEdit;
    text->setFixedHeight(80);
    notes->content()->addWidget(text);
    sheet->body()->addWidget(notes);
    sheet->body()->addStretch();
    return sheet;
}

std::unique_ptr<QWidget> destructive()
{
    return std::make_unique<Alert>(Alert::Kind::Question, u"Conferma Eliminazione"_s,
                                   u"Sei sicuro di voler eliminare l'attrezzatura 'Computer Suunto EON Core'? Questa "
                                   "azione non può essere annullata."_s);
}

std::unique_ptr<QWidget> notice()
{
    return std::make_unique<Alert>(Alert::Kind::Notice, u"Errore"_s,
                                   u"Per favore, compila tutti i campi obbligatori."_s);
}

std::unique_ptr<QWidget> progress()
{
    auto sheet = std::make_unique<ProgressSheet>(u"Copia del documento…"_s, nullptr);
    sheet->setFraction(0.42);
    return sheet;
}

} // namespace

QList<Scene> sheetScenes()
{
    return {{u"component-sheet"_s, sheetWithForm},
            {u"component-alert"_s, destructive},
            {u"component-notice"_s, notice},
            {u"no-answer"_s, [] { return std::make_unique<NoAnswerAlert>(); }},
            {u"progress-sheet"_s, progress}};
}

} // namespace abissora::gallery

// SPDX-License-Identifier: MIT
#include "ImportFields.h"

#include "Literals.h"

#include <QHash>
#include <QStringList>

namespace abissora {

namespace {

using Words = QHash<QString, ImportField>;

void add(Words& words, ImportField field, const QStringList& headings)
{
    for (const QString& heading : headings)
        words.insert(heading, field);
}

/// Common to both subjects.
Words commonWords()
{
    Words words;
    add(words, ImportField::Brand,
        {u"marca"_s, u"marchio"_s, u"produttore"_s, u"costruttore"_s, u"brand"_s, u"make"_s, u"manufacturer"_s,
         u"maker"_s});
    add(words, ImportField::Model, {u"modello"_s, u"model"_s, u"model name"_s});
    add(words, ImportField::SerialNumber,
        {u"numero seriale"_s, u"numero di serie"_s, u"n serie"_s, u"n di serie"_s, u"n seriale"_s, u"seriale"_s,
         u"matricola"_s, u"numero di matricola"_s, u"numero matricola"_s, u"serial"_s, u"serial number"_s,
         u"serial no"_s, u"serial nr"_s, u"s n"_s, u"sn"_s});
    add(words, ImportField::NextService,
        {u"prossimo tagliando"_s,
         u"prossima manutenzione"_s,
         u"prossima revisione"_s,
         u"prossimo collaudo"_s,
         u"scadenza"_s,
         u"data scadenza"_s,
         u"data di scadenza"_s,
         u"scade"_s,
         u"scade il"_s,
         u"next service"_s,
         u"next service date"_s,
         u"service due"_s,
         u"next due"_s,
         u"due"_s,
         u"due date"_s,
         u"due on"_s,
         u"expiry"_s,
         u"expiry date"_s,
         u"expires"_s,
         u"next inspection"_s});
    add(words, ImportField::Notes,
        {u"note"_s, u"nota"_s, u"annotazioni"_s, u"commenti"_s, u"commento"_s, u"osservazioni"_s, u"notes"_s,
         u"comment"_s, u"comments"_s, u"remarks"_s});
    return words;
}

Words itemWords()
{
    Words words = commonWords();
    add(words, ImportField::Name,
        {u"nome"_s, u"articolo"_s, u"attrezzatura"_s, u"attrezzo"_s, u"oggetto"_s, u"descrizione"_s, u"denominazione"_s,
         u"name"_s, u"item"_s, u"item name"_s, u"equipment"_s, u"gear"_s, u"description"_s, u"title"_s});
    add(words, ImportField::Type,
        {u"tipo"_s, u"tipologia"_s, u"categoria"_s, u"genere"_s, u"type"_s, u"kind"_s, u"category"_s,
         u"equipment type"_s});
    add(words, ImportField::PurchaseDate,
        {u"data acquisto"_s, u"data di acquisto"_s, u"data d acquisto"_s, u"acquisto"_s, u"acquistato"_s,
         u"acquistato il"_s, u"acquistata il"_s, u"comprato"_s, u"comprato il"_s, u"purchase date"_s, u"purchased"_s,
         u"purchased on"_s, u"bought"_s, u"bought on"_s, u"date of purchase"_s, u"date purchased"_s});
    add(words, ImportField::LastService,
        {u"ultimo tagliando"_s, u"ultima manutenzione"_s, u"ultima revisione"_s, u"ultimo collaudo"_s, u"revisionato"_s,
         u"revisionato il"_s, u"last service"_s, u"last service date"_s, u"last serviced"_s, u"serviced"_s,
         u"serviced on"_s, u"service date"_s, u"last inspection"_s});
    add(words, ImportField::State,
        {u"stato"_s, u"attivo"_s, u"attiva"_s, u"in uso"_s, u"state"_s, u"status"_s, u"active"_s, u"in use"_s});
    return words;
}

Words recordWords()
{
    Words words = commonWords();
    add(words, ImportField::Name,
        {u"articolo"_s, u"nome"_s, u"attrezzatura"_s, u"oggetto"_s, u"item"_s, u"name"_s, u"equipment"_s, u"gear"_s,
         u"item name"_s});
    add(words, ImportField::Date,
        {u"data"_s, u"data manutenzione"_s, u"data della manutenzione"_s, u"eseguita il"_s, u"eseguito il"_s, u"date"_s,
         u"service date"_s, u"maintenance date"_s, u"done on"_s, u"date of service"_s});
    add(words, ImportField::Kind,
        {u"tipo"_s, u"tipo manutenzione"_s, u"tipo di manutenzione"_s, u"tipo intervento"_s, u"tipo di intervento"_s,
         u"intervento"_s, u"type"_s, u"kind"_s, u"service type"_s, u"maintenance type"_s});
    add(words, ImportField::Description,
        {u"descrizione"_s, u"lavoro"_s, u"lavori"_s, u"lavori eseguiti"_s, u"description"_s, u"work"_s, u"work done"_s,
         u"details"_s});
    add(words, ImportField::PerformedBy,
        {u"eseguito da"_s, u"eseguita da"_s, u"effettuato da"_s, u"effettuata da"_s, u"tecnico"_s, u"officina"_s,
         u"negozio"_s, u"centro"_s, u"performed by"_s, u"done by"_s, u"technician"_s, u"shop"_s, u"workshop"_s,
         u"dive shop"_s, u"serviced by"_s});
    add(words, ImportField::Cost,
        {u"costo"_s, u"prezzo"_s, u"importo"_s, u"spesa"_s, u"cost"_s, u"price"_s, u"amount"_s});
    add(words, ImportField::Outcome,
        {u"esito"_s, u"avvenuta"_s, u"completata"_s, u"completato"_s, u"fatta"_s, u"fatto"_s, u"outcome"_s, u"result"_s,
         u"completed"_s, u"done"_s});
    return words;
}

const Words& wordsOf(ImportSubject subject)
{
    static const Words items = itemWords();
    static const Words records = recordWords();
    return subject == ImportSubject::Items ? items : records;
}

/// Letters and digits in small letters, whatever stood between them one blank: "N° di Serie (S/N)" is another matter.
QString plain(const QString& heading)
{
    QString letters;
    const QString small = heading.toLower();
    for (const QChar c : small)
        letters += c.isLetterOrNumber() && c != u'°' && c != u'º' ? c : QChar(u' ');
    return letters.simplified();
}

/// Of the columns of a field the one that has its very title, else the first.
qsizetype bestOf(const QList<ImportField>& fields, const QStringList& headings, ImportField field,
                 ImportSubject subject)
{
    const QString title = titleOf(field, subject).toLower();
    for (qsizetype column = 0; column < fields.size(); ++column) {
        if (fields.at(column) == field && headings.at(column) == title)
            return column;
    }
    return fields.indexOf(field);
}

} // namespace

const QList<ImportField>& fieldsOf(ImportSubject subject)
{
    using enum ImportField;
    static const QList<ImportField> items{Name,         Type,        Brand,       Model, SerialNumber,
                                          PurchaseDate, LastService, NextService, State, Notes};
    static const QList<ImportField> records{Name,        Brand,       Model, SerialNumber, Date,        Kind,
                                            Description, PerformedBy, Cost,  Outcome,      NextService, Notes};
    return subject == ImportSubject::Items ? items : records;
}

QString titleOf(ImportField field, ImportSubject subject)
{
    switch (field) {
    case ImportField::None:
        return u"Non importare"_s;
    case ImportField::Name:
        return subject == ImportSubject::Items ? u"Nome"_s : u"Articolo"_s;
    case ImportField::Type:
    case ImportField::Kind:
        return u"Tipo"_s;
    case ImportField::Brand:
        return u"Marca"_s;
    case ImportField::Model:
        return u"Modello"_s;
    case ImportField::SerialNumber:
        return u"Numero Seriale"_s;
    case ImportField::PurchaseDate:
        return u"Data Acquisto"_s;
    case ImportField::LastService:
        return u"Ultimo Tagliando"_s;
    case ImportField::NextService:
        return u"Prossimo Tagliando"_s;
    case ImportField::State:
        return u"Stato"_s;
    case ImportField::Notes:
        return u"Note"_s;
    case ImportField::Date:
        return u"Data"_s;
    case ImportField::Description:
        return u"Descrizione"_s;
    case ImportField::PerformedBy:
        return u"Eseguito da"_s;
    case ImportField::Cost:
        return u"Costo"_s;
    case ImportField::Outcome:
        return u"Esito"_s;
    }
    return {};
}

ImportSubject subjectOf(const QStringList& headings)
{
    // Nobody writes into a list of works when the item was bought.
    if (fieldsOf(headings, ImportSubject::Items).contains(ImportField::PurchaseDate))
        return ImportSubject::Items;
    const QList<ImportField> fields = fieldsOf(headings, ImportSubject::Records);
    const auto has = [&fields](ImportField field) { return fields.contains(field); };
    const bool tellsWork = has(ImportField::PerformedBy) || has(ImportField::Cost) || has(ImportField::Outcome) ||
                           has(ImportField::Description);
    return has(ImportField::Date) && tellsWork ? ImportSubject::Records : ImportSubject::Items;
}

QList<ImportField> fieldsOf(const QStringList& headings, ImportSubject subject)
{
    const Words& words = wordsOf(subject);
    QStringList known;
    QList<ImportField> fields;
    for (const QString& heading : headings) {
        known.append(plain(heading));
        fields.append(words.value(known.last(), ImportField::None));
    }
    const QList<ImportField> all = fields;
    for (qsizetype column = 0; column < fields.size(); ++column) {
        const qsizetype best = bestOf(all, known, all.at(column), subject);
        if (best != column && known.at(best) != known.at(column))
            fields[column] = ImportField::None;
    }
    return fields;
}

} // namespace abissora

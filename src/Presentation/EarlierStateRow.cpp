// SPDX-License-Identifier: MIT
#include "EarlierStateRow.h"

#include "CountText.h"
#include "Literals.h"

namespace abissora {

namespace {

const QString warningSymbol = u"exclamationmark.triangle.fill"_s;

struct OccasionLook
{
    QString text;
    QString symbol;
};

OccasionLook lookOf(Occasion occasion)
{
    switch (occasion) {
    case Occasion::firstOfDay:
        return {u"Prima modifica del giorno"_s, u"pencil"_s};
    case Occasion::deletedDocument:
        return {u"Prima di togliere un documento"_s, u"doc.badge.minus"_s};
    case Occasion::deletedRecord:
        return {u"Prima di eliminare una manutenzione"_s, u"calendar.badge.minus"_s};
    case Occasion::deletedItem:
        return {u"Prima di eliminare un articolo"_s, u"trash"_s};
    case Occasion::deletedType:
        return {u"Prima di eliminare una tipologia"_s, u"text.badge.minus"_s};
    case Occasion::typesReset:
        return {u"Prima di ripristinare le tipologie"_s, u"arrow.counterclockwise"_s};
    case Occasion::iconsMigrated:
        return {u"Prima di aggiornare le icone"_s, u"paintbrush"_s};
    case Occasion::import:
        return {u"Prima di importare"_s, u"square.and.arrow.down"_s};
    case Occasion::restoration:
        return {u"Prima di ripristinare"_s, u"clock.arrow.circlepath"_s};
    case Occasion::unknownMembers:
        return {u"Con dati di un'altra versione"_s, u"arrow.triangle.branch"_s};
    case Occasion::foreignBytes:
        return {u"Scritto da un altro programma"_s, u"app.badge"_s};
    case Occasion::unreadable:
        return {u"Con dati che non erano leggibili"_s, warningSymbol};
    case Occasion::emergency:
        return {u"Non salvato alla chiusura"_s, u"externaldrive.badge.xmark"_s};
    case Occasion::change:
        break;
    }
    return {u"Prima di una modifica"_s, u"square.and.pencil"_s};
}

template <typename Record>
bool isReadable(const StoredList<Record>& list)
{
    return list.isStored && (!list.error || !list.records.isEmpty());
}

/// "leggibili 299 articoli su 300", empty when nothing is missing or nobody knows of how many.
template <typename Record>
QString readableShare(const StoredList<Record>& list, QString (*text)(qsizetype))
{
    if (!list.error || list.total == 0)
        return {};
    return u"%1 su %2"_s.arg(text(list.records.size())).arg(list.total);
}

QString unreadableText(const StateContent& content)
{
    QStringList shares{readableShare(content.equipment, itemsText), readableShare(content.types, typesText)};
    shares.removeAll(QString());
    if (shares.isEmpty())
        return u"Dati non leggibili"_s;
    return u"Dati non leggibili: leggibili "_s + shares.join(u", "_s);
}

QString countsText(const StateContent& content)
{
    if (!canBeRestored(content))
        return u"Niente di leggibile"_s;
    if (!content.equipment.isStored)
        return typesText(content.types.records.size());
    return itemsText(content.equipment.records.size()) + u" · "_s + recordsText(content.maintenanceCount());
}

} // namespace

EarlierStateRow EarlierStateRow::of(const EarlierState& state, const StateContent& content, const Almanac& almanac)
{
    EarlierStateRow row = ofUnread(state, almanac);
    row.counts = countsText(content);
    if (content.isWhole())
        return row;
    row.occasion = unreadableText(content);
    if (state.occasion != Occasion::emergency)
        row.symbol = warningSymbol;
    row.isWarning = true;
    return row;
}

EarlierStateRow EarlierStateRow::ofUnread(const EarlierState& state, const Almanac& almanac)
{
    const OccasionLook look = lookOf(state.occasion);
    return {
        .when = almanac.dates.abbreviatedDate(state.kept) + u", "_s + timeText(state.kept, almanac),
        .counts = u"…"_s,
        .occasion = look.text,
        .symbol = look.symbol,
        .isWarning = wantsAttention(state),
    };
}

QString timeText(Instant instant, const Almanac& almanac)
{
    return almanac.calendar.local(instant).toString(u"HH:mm"_s);
}

QString groupTitle(const EarlierState& state, const Almanac& almanac)
{
    if (state.occasion == Occasion::emergency)
        return u"Non salvato"_s;
    const QDate today = almanac.calendar.local(almanac.now()).date();
    const QDate day = almanac.calendar.local(state.kept).date();
    if (day == today)
        return u"Oggi"_s;
    if (day == today.addDays(-1))
        return u"Ieri"_s;
    static const QLocale italian(QLocale::Italian, QLocale::Italy);
    QString month = italian.standaloneMonthName(day.month());
    month.front() = month.front().toUpper();
    return day.year() == today.year() ? month : u"%1 %2"_s.arg(month).arg(day.year());
}

bool wantsAttention(const EarlierState& state)
{
    return state.occasion == Occasion::unreadable || state.occasion == Occasion::emergency;
}

bool canBeRestored(const StateContent& content)
{
    return content.equipment.isStored ? isReadable(content.equipment) : isReadable(content.types);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "UpdateOffer.h"

#include "ForeignText.h"
#include "Literals.h"

namespace abissora {

namespace {

constexpr qsizetype longestVersion = 80;
constexpr qsizetype longestNotes = 100'000;
constexpr qsizetype longestAddress = 300;

QString shownRelease(const UpdateInfo& update)
{
    UpdateInfo shown = update;
    shown.version = shownLine(update.version, longestVersion);
    return shown.versionAndBuild();
}

QString shownNotes(const UpdateInfo& update)
{
    const QString notes = shownText(update.releaseNotes.value_or(QString()), longestNotes);
    return notes.trimmed().isEmpty() ? u"Consulta il sito dell'applicazione per i dettagli del rilascio."_s : notes;
}

} // namespace

UpdateOffer UpdateOffer::of(const UpdateInfo& update, const QUrl& website)
{
    const QUrl page = opensInBrowser(update.downloadURL) ? update.downloadURL : website;
    return {
        .version = u"Nuova versione · "_s + shownRelease(update),
        .notes = shownNotes(update),
        .page = page,
        .host = page.host(QUrl::FullyEncoded),
        .unopened = u"Il sistema non ha aperto la pagina da cui scaricare: forse manca un browser. L'indirizzo è:\n"_s +
                    shownLine(page.toString(QUrl::FullyEncoded), longestAddress),
    };
}

CheckOutcome CheckOutcome::of(const std::optional<UpdateInfo>& update, const std::optional<QString>& error)
{
    if (update)
        return {u"Versione "_s + shownRelease(*update) + u" disponibile"_s};
    if (error)
        return {*error, true};
    return {u"Hai già l'ultima versione"_s};
}

} // namespace abissora

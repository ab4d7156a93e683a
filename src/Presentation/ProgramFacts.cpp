// SPDX-License-Identifier: MIT
#include "ProgramFacts.h"

#include "Literals.h"

namespace abissora {

QList<ProgramFact> ProgramFacts::all() const
{
    const QString& author = product.author;
    return {
        {u"Versione"_s, info.version() + u" (build "_s + info.build() + u')'},
        {u"Data Build"_s, info.buildDate()},
        {u"Sviluppato da"_s, author},
        {u"Copyright"_s, u"© "_s + info.year() + u' ' + author},
    };
}

QList<HelpSection> ProgramFacts::guide() const
{
    const QStringList ofUpdates{u"Aggiornamenti"_s, u"Controlla aggiornamenti all'avvio"_s,
                                u"Controlla aggiornamenti ora"_s};
    const QList<HelpSection> whole = HelpLoader::load();
    return looksForUpdates() ? whole : HelpLoader::without(ofUpdates, whole);
}

} // namespace abissora

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

} // namespace abissora

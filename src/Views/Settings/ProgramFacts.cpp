// SPDX-License-Identifier: MIT
#include "ProgramFacts.h"

namespace abissora {

QList<ProgramFact> programFacts(const AppContext& context)
{
    const AppInfo& info = context.info;
    const QString& author = context.product.author;
    return {
        {QStringLiteral("Versione"), info.version() + QStringLiteral(" (build ") + info.build() + QLatin1Char(')')},
        {QStringLiteral("Data Build"), info.buildDate()},
        {QStringLiteral("Sviluppato da"), author},
        {QStringLiteral("Copyright"), QStringLiteral("© ") + info.year() + QLatin1Char(' ') + author},
    };
}

} // namespace abissora

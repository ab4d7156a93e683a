// SPDX-License-Identifier: MIT
#include "CountText.h"

#include "Literals.h"

namespace abissora {

namespace {

QString counted(qsizetype count, const QString& none, const QString& one, const QString& many)
{
    return count == 0 ? none : count == 1 ? one : many.arg(count);
}

} // namespace

QString itemsText(qsizetype count)
{
    return counted(count, u"nessun articolo"_s, u"1 articolo"_s, u"%1 articoli"_s);
}

QString recordsText(qsizetype count)
{
    return counted(count, u"nessuna manutenzione"_s, u"1 manutenzione"_s, u"%1 manutenzioni"_s);
}

QString typesText(qsizetype count)
{
    return counted(count, u"nessuna tipologia"_s, u"1 tipologia"_s, u"%1 tipologie"_s);
}

} // namespace abissora

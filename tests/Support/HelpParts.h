// SPDX-License-Identifier: MIT
#pragma once

#include "HelpLoader.h"
#include "Literals.h"

namespace abissora::test {

/// "manutenzione" stands in the first two.
inline QList<HelpSection> threeSections()
{
    return HelpLoader::parse(u"## Primi passi\n"
                             "La prima manutenzione.\n"
                             "uno\n"
                             "due\n"
                             "## Manutenzioni\n"
                             "Ogni manutenzione ha il suo scontrino.\n"
                             "### Come\n"
                             "1. Così.\n"
                             "## Tipologie e qualità\n"
                             "Ogni **tipologia** ha il suo intervallo.\n"_s);
}

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#include "IconFilter.h"

#include "TextSearch.h"

namespace abissora {

QList<DivingIconsCategory> filteredIcons(const QString& searchIconText)
{
    const TextSearch search(searchIconText);
    QList<DivingIconsCategory> filtered;
    for (const auto& [title, icons] : categorizedDivingIcons()) {
        DivingIconsCategory section{title, {}};
        std::copy_if(icons.begin(), icons.end(), std::back_inserter(section.icons), [&search](DivingIcons icon) {
            return search.foundIn(displayName(icon)) || search.foundIn(rawValue(icon));
        });
        if (!section.icons.isEmpty())
            filtered.append(section);
    }
    return filtered;
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QHashFunctions>
#include <QString>

namespace abissora {

/// One chapter of the guide.
struct HelpSection
{
    QString id;
    QString title;
    QString body; ///< markup, without the heading's line

    friend bool operator==(const HelpSection&, const HelpSection&) = default;
    friend size_t qHash(const HelpSection& section, size_t seed = 0)
    {
        return qHashMulti(seed, section.id, section.title, section.body);
    }
};

} // namespace abissora

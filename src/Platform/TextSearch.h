// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// Containment without regard to letter case: full Unicode case folding and canonical equivalence, so a decomposed
/// accent matches a composed one, while a letter with an accent never matches the one without.
/// Prepare once, match many.
class TextSearch
{
public:
    explicit TextSearch(const QString& needle);

    /// True for an empty needle.
    [[nodiscard]] bool foundIn(const QString& text) const;

private:
    QString m_needle; // folded and composed
};

} // namespace abissora

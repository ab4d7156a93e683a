// SPDX-License-Identifier: MIT
#pragma once

#include "HelpSection.h"

#include <QList>

namespace abissora {

class HelpLoader
{
public:
    /// The guide among the program's resources.
    [[nodiscard]] static QList<HelpSection> load();
    /// A document that is missing or is no UTF-8 gives the one section that says so, never an error.
    [[nodiscard]] static QList<HelpSection> load(const QString& path);

    /// One section for each level-two heading. A hand-written table of contents and sections without a text are left
    /// out; what stands before the first heading becomes the introduction.
    [[nodiscard]] static QList<HelpSection> parse(const QString& document);
};

} // namespace abissora

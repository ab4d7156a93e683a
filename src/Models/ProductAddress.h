// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QUrl>

namespace abissora {

/// Ends the program when the text is no https address: the build chose it.
inline QUrl webAddress(const QString& text)
{
    QUrl address(text, QUrl::StrictMode);
    if (!address.isValid() || address.scheme() != "https"_L1 || address.host().isEmpty())
        qFatal("\"%s\" is no address of a website; the build chooses it", qPrintable(text));
    return address;
}

} // namespace abissora

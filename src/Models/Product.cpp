// SPDX-License-Identifier: MIT
#include "Product.h"

#include "Literals.h"

namespace abissora {

namespace {

QUrl webAddress(const QString& text)
{
    QUrl address(text, QUrl::StrictMode);
    if (!address.isValid() || address.scheme() != "https"_L1 || address.host().isEmpty())
        qFatal("\"%s\" is no address of a website; the build chooses it", qPrintable(text));
    return address;
}

} // namespace

Product Product::builtIn()
{
    return {QStringLiteral(ABISSORA_AUTHOR), webAddress(QStringLiteral(ABISSORA_WEBSITE_URL)),
            webAddress(QStringLiteral(ABISSORA_MANIFEST_URL))};
}

} // namespace abissora

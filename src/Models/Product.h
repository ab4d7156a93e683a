// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

namespace abissora {

/// Who makes the program and where it lives on the web; chosen when the program is built, see cmake/Product.cmake.
struct Product
{
    QString author;
    QUrl websiteURL;  ///< https, ends in "/"
    QUrl manifestURL; ///< the newest release in JSON, not derived from the website; empty: it is never looked for

    /// Without the manifest's address (NetworkUpdates.h). Ends the program when an address is none.
    [[nodiscard]] static Product builtIn();
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "Product.h"

#include "ProductAddress.h"

namespace abissora {

Product Product::builtIn()
{
    return {QStringLiteral(ABISSORA_AUTHOR), webAddress(QStringLiteral(ABISSORA_WEBSITE_URL)), {}};
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "PaperLook.h"

#include "PaperTokens.h"
#include "SymbolIcon.h"

#include <QPixmap>

namespace abissora {

PaperInk paperInk()
{
    const PaperTokens tokens;
    return {tokens.ink, tokens.secondary, tokens.line};
}

QImage paperPicture(const QString& symbol, int pixels)
{
    return symbolIcon(symbol, PaperTokens().ink).pixmap(QSize(pixels, pixels), 1).toImage();
}

} // namespace abissora

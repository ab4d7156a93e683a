// SPDX-License-Identifier: MIT
#include "ToolTipText.h"

#include <QTextDocument>

namespace abissora {

QString toolTipText(const QString& text)
{
    // Only where it must be: screen readers read tool tips, too.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace abissora

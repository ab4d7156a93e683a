// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>
#include <QTextEdit>

namespace abissora {

/// Fields of several lines are framed like those of one.
[[nodiscard]] inline bool isTextEdit(const QWidget* widget)
{
    return qobject_cast<const QTextEdit*>(widget) != nullptr || qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

// Texts and addresses that come from elsewhere. They may be of any length and hold any character.
namespace abissora {

/// Without what draws nothing or turns the direction of writing; line ends and tabs stay.
[[nodiscard]] QString shownText(const QString& text, qsizetype longest);
/// The same on one line.
[[nodiscard]] QString shownLine(const QString& text, qsizetype longest);

/// Whether it is the address of a web page. Any other scheme may start any program on this machine.
[[nodiscard]] bool opensInBrowser(const QUrl& url);

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateInfo.h"

namespace abissora {

/// What is shown of a newer release: plain text of a length that every screen has room for.
struct UpdateOffer
{
    QString version; ///< "Nuova versione · 1.3.0 (build 57)"
    QString notes;
    QUrl page;        ///< the release's own, or the website when it names none that a browser opens
    QString host;     ///< of the page, in plain letters, so that no other host looks like it
    QString unopened; ///< what to say when nothing on this system opens the page

    [[nodiscard]] static UpdateOffer of(const UpdateInfo& update, const QUrl& website);
};

/// How a check for updates ended, in one line.
struct CheckOutcome
{
    QString text;
    bool isError = false;

    /// The error counts only when the check found nothing.
    [[nodiscard]] static CheckOutcome of(const std::optional<UpdateInfo>& update, const std::optional<QString>& error);
};

} // namespace abissora

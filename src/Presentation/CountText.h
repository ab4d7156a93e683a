// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

// Numbers of things in words.
namespace abissora {

/// "12 articoli", "1 articolo", "nessun articolo"
[[nodiscard]] QString itemsText(qsizetype count);
/// "31 manutenzioni", "1 manutenzione", "nessuna manutenzione"
[[nodiscard]] QString recordsText(qsizetype count);
/// "16 tipologie", "1 tipologia", "nessuna tipologia"
[[nodiscard]] QString typesText(qsizetype count);

} // namespace abissora

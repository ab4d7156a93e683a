// SPDX-License-Identifier: MIT
#include "UpdateCheckError.h"

namespace abissora {

QString UpdateCheckError::errorDescription() const
{
    switch (which) {
    case Case::network:
        return QStringLiteral("Impossibile contattare il sito. Controlla la connessione.");
    case Case::invalidResponse:
        return QStringLiteral("Il server non ha risposto correttamente.");
    case Case::invalidManifest:
        return QStringLiteral("Il file di aggiornamento sul sito non è valido.");
    }
    Q_UNREACHABLE();
}

} // namespace abissora

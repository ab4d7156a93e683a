// SPDX-License-Identifier: MIT
#include "UpdateCheckError.h"

#include "Literals.h"

namespace abissora {

QString UpdateCheckError::errorDescription() const
{
    switch (which) {
    case Case::network:
        return u"Impossibile contattare il sito. Controlla la connessione."_s;
    case Case::invalidResponse:
        return u"Il server non ha risposto correttamente."_s;
    case Case::invalidManifest:
        return u"Il file di aggiornamento sul sito non è valido."_s;
    }
    Q_UNREACHABLE();
}

} // namespace abissora

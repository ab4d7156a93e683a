// SPDX-License-Identifier: MIT
#include "CheckedField.h"

#include "ControlLook.h"

namespace abissora {

void CheckedField::setError(const QString& error)
{
    if (error == m_error)
        return;
    m_error = error;
    setInvalidLook(*this, !error.isEmpty());
    setAccessibleDescription(error);
    Q_EMIT errorChanged(error);
}

} // namespace abissora

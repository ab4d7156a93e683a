// SPDX-License-Identifier: MIT
#include "IdGenerator.h"

#include <QString>

namespace abissora {

QUuid RandomIdGenerator::next()
{
    return QUuid::createUuid();
}

QString uuidText(const QUuid& id)
{
    return id.toString(QUuid::WithoutBraces).toUpper();
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "TemporaryName.h"

#include "AtomicFile.h"

#include <QDir>
#include <QRandomGenerator>

namespace abissora::AtomicFile {

QString temporaryName()
{
    const quint64 digits = QRandomGenerator::global()->generate64();
    return QStringLiteral(".abissora-%1.tmp").arg(digits, 16, 16, QLatin1Char('0'));
}

void removeLeftovers(const QString& folder)
{
    QDir dir(folder);
    const QStringList leftovers =
        dir.entryList({QStringLiteral(".abissora-????????????????.tmp")}, QDir::Files | QDir::Hidden | QDir::System);
    for (const QString& name : leftovers)
        dir.remove(name);
}

} // namespace abissora::AtomicFile

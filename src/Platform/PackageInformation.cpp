// SPDX-License-Identifier: MIT
#include "PackageInformation.h"

#include "Literals.h"

#include <QCoreApplication>

namespace abissora {

QVariant BuiltInPackageInformation::value(const QString& key) const
{
    if (key == "CFBundleShortVersionString"_L1)
        return QStringLiteral(ABISSORA_VERSION);
    if (key == "CFBundleVersion"_L1)
        return QStringLiteral(ABISSORA_BUILD);
    return {};
}

std::optional<QString> BuiltInPackageInformation::executablePath() const
{
    if (QCoreApplication::startingUp()) // or there is no application at all
        return std::nullopt;
    const QString path = QCoreApplication::applicationFilePath();
    return path.isEmpty() ? std::nullopt : std::optional(path);
}

} // namespace abissora

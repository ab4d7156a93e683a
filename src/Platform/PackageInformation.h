// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariant>
#include <optional>

namespace abissora {

/// What the installed package says of itself.
class PackageInformation
{
public:
    virtual ~PackageInformation() = default;
    /// Invalid when the key is absent. Keys: "CFBundleShortVersionString", "CFBundleVersion".
    [[nodiscard]] virtual QVariant value(const QString& key) const = 0;
    [[nodiscard]] virtual std::optional<QString> executablePath() const = 0;
};

/// Version and build number compiled in, executable path of the running process.
class BuiltInPackageInformation final : public PackageInformation
{
public:
    [[nodiscard]] QVariant value(const QString& key) const override;
    [[nodiscard]] std::optional<QString> executablePath() const override;
};

} // namespace abissora

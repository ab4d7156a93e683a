// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "DateFormat.h"
#include "Literals.h"
#include "PackageInformation.h"

namespace abissora {

/// What the running program says of itself, computed afresh at every call. A missing value reads "—".
class AppInfo
{
public:
    /// `package` and `clock` must outlive it.
    AppInfo(const PackageInformation& package, const Clock& clock, Calendar calendar);

    [[nodiscard]] QString version() const { return text(u"CFBundleShortVersionString"_s); }
    [[nodiscard]] QString build() const { return text(u"CFBundleVersion"_s); }
    /// Of the clock at the moment of the call, not of the build.
    [[nodiscard]] QString year() const { return m_format.year(m_clock.now()); }
    /// When the executable file was last modified: "07/03/2025 18:45", in the user's zone.
    [[nodiscard]] QString buildDate() const;

private:
    [[nodiscard]] QString text(const QString& key) const;

    const PackageInformation& m_package;
    const Clock& m_clock;
    DateFormat m_format;
};

} // namespace abissora

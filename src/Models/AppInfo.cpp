// SPDX-License-Identifier: MIT
#include "AppInfo.h"

#include <QFileInfo>

namespace abissora {

namespace {

const QString missing = u"—"_s;

} // namespace

AppInfo::AppInfo(const PackageInformation& package, const Clock& clock, Calendar calendar)
    : m_package(package)
    , m_clock(clock)
    , m_format(QLocale(QLocale::Italian, QLocale::Italy), std::move(calendar))
{}

QString AppInfo::buildDate() const
{
    const auto path = m_package.executablePath();
    if (!path)
        return missing;
    const QDateTime modified = QFileInfo(*path).lastModified();
    if (!modified.isValid())
        return missing;
    return m_format.dayAndTime(Instant(std::chrono::milliseconds(modified.toMSecsSinceEpoch())));
}

QString AppInfo::text(const QString& key) const
{
    const QVariant value = m_package.value(key);
    return value.metaType().id() == QMetaType::QString ? value.toString() : missing;
}

} // namespace abissora

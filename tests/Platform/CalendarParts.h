// SPDX-License-Identifier: MIT
#pragma once

#include "Calendar.h"

namespace abissora::test {

/// "2026-03-29T01:30:00.250Z", with or without milliseconds, or with an offset.
inline Instant at(const QString& iso)
{
    const auto time = QDateTime::fromString(iso, Qt::ISODateWithMs);
    return Instant{std::chrono::milliseconds{time.toMSecsSinceEpoch()}};
}

inline Calendar in(const QByteArray& zone)
{
    return Calendar(QTimeZone(zone));
}

inline Calendar in(const QString& zone)
{
    return in(zone.toLatin1());
}

} // namespace abissora::test

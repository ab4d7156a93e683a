// SPDX-License-Identifier: MIT
#include "EarlierState.h"

#include "Literals.h"

#include <QDateTime>
#include <QRegularExpression>
#include <array>

namespace abissora {

namespace {

constexpr std::array occasionNames{
    std::pair{Occasion::change, u"change"},
    std::pair{Occasion::firstOfDay, u"first-of-day"},
    std::pair{Occasion::deletedDocument, u"deleted-document"},
    std::pair{Occasion::deletedRecord, u"deleted-record"},
    std::pair{Occasion::deletedItem, u"deleted-item"},
    std::pair{Occasion::deletedType, u"deleted-type"},
    std::pair{Occasion::typesReset, u"types-reset"},
    std::pair{Occasion::iconsMigrated, u"icons-migrated"},
    std::pair{Occasion::import, u"import"},
    std::pair{Occasion::restoration, u"restoration"},
    std::pair{Occasion::unknownMembers, u"unknown-members"},
    std::pair{Occasion::foreignBytes, u"foreign"},
    std::pair{Occasion::unreadable, u"unreadable"},
    std::pair{Occasion::emergency, u"emergency"},
};

const QString stampPattern = u"yyyyMMddTHHmmss.zzz"_s;

} // namespace

QString stateName(Instant kept, Occasion occasion)
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(kept.time_since_epoch().count(), Qt::UTC);
    const auto* const named = std::ranges::find(occasionNames, occasion, [](const auto& entry) { return entry.first; });
    return time.toString(stampPattern) + u"Z-"_s + QString::fromUtf16(named->second);
}

std::optional<StateName> parseStateName(const QString& name)
{
    static const QRegularExpression form(u"^([0-9]{8}T[0-9]{6}\\.[0-9]{3})Z-([a-z-]+)$"_s);
    const QRegularExpressionMatch match = form.match(name);
    QDateTime time = QDateTime::fromString(match.captured(1), stampPattern);
    time.setTimeSpec(Qt::UTC);
    if (!match.hasMatch() || !time.isValid())
        return std::nullopt;
    const auto* const named = std::ranges::find(occasionNames, match.captured(2),
                                                [](const auto& entry) { return QString::fromUtf16(entry.second); });
    return StateName{Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch())),
                     named == occasionNames.end() ? Occasion::change : named->first};
}

} // namespace abissora

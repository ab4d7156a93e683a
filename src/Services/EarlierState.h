// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "Occasion.h"

#include <QHash>
#include <QString>
#include <optional>

namespace abissora {

/// A kept state of the register: a folder with the files of the preferences store as they were. Earlier versions kept
/// unreadable data as single files; these count as states too.
struct EarlierState
{
    /// "20261121T184205.123Z-deleted-item", unique; what stands in the lists of the command line.
    QString name;
    QString path;
    Instant kept{}; ///< when
    Occasion occasion = Occasion::change;
    QHash<QString, QString> files; ///< the path of the file of each key

    friend bool operator==(const EarlierState&, const EarlierState&) = default;
};

/// Whether a clock must have been wrong, the one by which the state was kept or the present one. Less than a day may
/// be a time zone, or a clock that was set a little.
[[nodiscard]] inline bool isAhead(Instant kept, Instant now)
{
    return kept > now + std::chrono::days(1);
}

/// The name of a state: the UTC time to the millisecond, so that names sort by time, and the occasion.
[[nodiscard]] QString stateName(Instant kept, Occasion occasion);

struct StateName
{
    Instant kept{};
    Occasion occasion = Occasion::change;
};
/// Nothing for any other text. An occasion that this version does not know is Occasion::change.
[[nodiscard]] std::optional<StateName> parseStateName(const QString& name);

} // namespace abissora

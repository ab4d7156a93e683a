// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QHash>
#include <QStringList>

namespace abissora {

/// What each of the person's settings is stored under.
struct SettingKey
{
    static inline const QString notificationsEnabled = u"notificationsEnabled"_s;
    static inline const QString reminderDays = u"reminderDays"_s;
    static inline const QString defaultServiceInterval = u"defaultServiceInterval"_s;
    static inline const QString currencySymbol = u"currencySymbol"_s;
    static inline const QString darkMode = u"darkMode"_s;
    static inline const QString checkForUpdatesOnLaunch = u"checkForUpdatesOnLaunch"_s;
};

/// Of the files of a folder of preferences, by key, those of settings that do not count as they are stored: no value of
/// the setting's type can be read. Of a key that is not known, which a newer version may have, any value will do. Keys
/// in order.
[[nodiscard]] QStringList damagedSettings(const QHash<QString, QString>& files);

} // namespace abissora

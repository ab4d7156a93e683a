// SPDX-License-Identifier: MIT
#include "StoredSettings.h"

#include "PreferencesStore.h"
#include "StateFiles.h"

#include <QFileInfo>

namespace abissora {

namespace {

bool counts(const PreferencesStore& stored, const QString& key)
{
    static const QStringList switches{SettingKey::notificationsEnabled, SettingKey::darkMode,
                                      SettingKey::checkForUpdatesOnLaunch};
    static const QStringList numbers{SettingKey::reminderDays, SettingKey::defaultServiceInterval, iconVersionKey};
    if (switches.contains(key))
        return stored.boolean(key).has_value();
    if (numbers.contains(key))
        return stored.integer(key).has_value();
    if (key == SettingKey::currencySymbol)
        return stored.text(key).has_value();
    return stored.hasValue(key);
}

} // namespace

QStringList damagedSettings(const QHash<QString, QString>& files)
{
    KeepNothing keeper;
    QStringList damaged;
    for (auto file = files.cbegin(); file != files.cend(); ++file) {
        if (file.key() == registerKey || file.key() == typesKey)
            continue;
        const PreferencesStore stored(QFileInfo(*file).path(), keeper,
                                      [&file](const QString& /*path*/) { return AtomicFile::read(*file); });
        if (!counts(stored, file.key()))
            damaged.append(file.key());
    }
    damaged.sort();
    return damaged;
}

} // namespace abissora

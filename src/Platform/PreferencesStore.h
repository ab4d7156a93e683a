// SPDX-License-Identifier: MIT
#pragma once

#include "Clock.h"
#include "IoError.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <optional>

namespace abissora {

/// Typed values by key, one file per key ("<key>.json"), each replaced atomically. Keys are plain names (ASCII letters
/// and digits).
class PreferencesStore
{
public:
    /// Neither folder need exist; both are created by the first write that needs them.
    /// `clock` names the copies of unreadable data and must outlive the store.
    PreferencesStore(QString folder, QString backupsFolder, const Clock& clock);

    /// The stored bytes as they are on the disk at the moment of the call; nothing when the key is absent.
    [[nodiscard]] IoResult<std::optional<QByteArray>> data(const QString& key) const;
    /// Refused while bytes marked by preserveUnreadable have no copy yet.
    IoResult<void> setData(const QString& key, const QByteArray& bytes);

    /// Scalars are JSON values; an absent, unreadable or differently typed value reads as nothing. A number counts as
    /// an integer when it is whole and fits 64 bits. Each is read from the disk once and then kept, and so is its
    /// absence; a write that fails leaves the value as it was.
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const;
    [[nodiscard]] std::optional<std::int64_t> integer(const QString& key) const;
    [[nodiscard]] std::optional<QString> text(const QString& key) const;
    IoResult<void> setBoolean(const QString& key, bool value);
    IoResult<void> setInteger(const QString& key, std::int64_t value);
    IoResult<void> setText(const QString& key, const QString& value);

    /// For the owner of data that it cannot decode: keeps a copy of the stored bytes in the backups folder, under a
    /// name with date and time, never twice the same bytes. On failure setData refuses to overwrite them and tries
    /// again first. Copies are never deleted.
    IoResult<void> preserveUnreadable(const QString& key);

    [[nodiscard]] QString path(const QString& key) const;

private:
    [[nodiscard]] QByteArray scalar(const QString& key) const;
    IoResult<void> setScalar(const QString& key, const QByteArray& json);
    IoResult<void> keepCopy(const QString& key) const;

    QString m_folder;
    QString m_backupsFolder;
    const Clock& m_clock;
    QSet<QString> m_unpreserved;
    mutable QHash<QString, QByteArray> m_scalars; ///< as stored; empty where nothing could be read
};

} // namespace abissora

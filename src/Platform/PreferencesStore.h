// SPDX-License-Identifier: MIT
#pragma once

#include "AtomicFile.h"
#include "FileIdentity.h"
#include "StateKeeper.h"

#include <QByteArray>
#include <QHash>
#include <QStringList>
#include <functional>
#include <optional>

namespace abissora {

/// Typed values by key, one file per key ("<key>.json"), each replaced atomically. Keys are plain names (ASCII letters
/// and digits). A write that fails is pending: the value stands for whoever asks this store, and retry() writes it.
class PreferencesStore
{
public:
    /// How a file is read: as AtomicFile::read() does.
    using Read = std::function<IoResult<QByteArray>(const QString& path)>;

    /// The folder need not exist; the first write creates it. `keeper` must outlive the store.
    PreferencesStore(QString folder, StateKeeper& keeper, Read read = AtomicFile::read);

    /// The stored bytes as they are on the disk at the moment of the call; nothing when the key is absent.
    [[nodiscard]] IoResult<std::optional<QByteArray>> data(const QString& key) const;
    /// Asks the keeper first. What is on the disk and was neither read nor written by this store counts as
    /// Occasion::foreignBytes.
    IoResult<void> setData(const QString& key, const QByteArray& bytes, Occasion occasion = Occasion::change);

    /// Scalars are JSON values; an absent, unreadable or differently typed value reads as nothing. A number counts as
    /// an integer when it is whole and fits 64 bits. Each is read from the disk once and then kept, and so is its
    /// absence.
    [[nodiscard]] std::optional<bool> boolean(const QString& key) const;
    [[nodiscard]] std::optional<std::int64_t> integer(const QString& key) const;
    [[nodiscard]] std::optional<QString> text(const QString& key) const;
    /// Whether the key has a value of whatever type.
    [[nodiscard]] bool hasValue(const QString& key) const;
    IoResult<void> setBoolean(const QString& key, bool value);
    IoResult<void> setInteger(const QString& key, std::int64_t value);
    IoResult<void> setText(const QString& key, const QString& value);

    /// For the owner of data that it cannot decode: lets the keeper keep it at once. On failure nothing overwrites it
    /// before it is kept.
    IoResult<void> preserveUnreadable(const QString& key);
    /// For the owner of data that says more than it understands: the next write keeps it first.
    void keepUnknownMembers(const QString& key);

    /// The keys whose last write failed, with what is to be written.
    [[nodiscard]] QHash<QString, QByteArray> pending() const;
    /// Writes what is pending once more. Gives the keys that were written now.
    QStringList retry();
    /// The files are another's from now on: what is pending is forgotten, and every write fails with ECANCELED without
    /// becoming pending.
    void giveUp();
    /// Called whenever a write failed.
    void whenPending(std::function<void()> listener) { m_whenPending = std::move(listener); }

    [[nodiscard]] const QString& folder() const { return m_folder; }
    [[nodiscard]] QString path(const QString& key) const;

private:
    struct Pending
    {
        QByteArray bytes;
        Occasion occasion = Occasion::change;
    };

    [[nodiscard]] QByteArray scalar(const QString& key) const;
    IoResult<void> setScalar(const QString& key, const QByteArray& json);
    IoResult<void> write(const QString& key, const Pending& value);
    [[nodiscard]] Occasion weightiest(const QString& key, Occasion occasion) const;

    QString m_folder;
    StateKeeper& m_keeper;
    Read m_read;
    std::function<void()> m_whenPending;
    bool m_hasGivenUp = false;
    QHash<QString, Pending> m_pending;
    QHash<QString, Occasion> m_toKeep;                           ///< by key, before it is overwritten
    mutable QHash<QString, std::optional<FileIdentity>> m_known; ///< the file as it was last seen
    mutable QHash<QString, QByteArray> m_scalars; ///< as stored or pending; empty where nothing could be read
};

} // namespace abissora

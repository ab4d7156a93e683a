// SPDX-License-Identifier: MIT
#include "StateFiles.h"

#include "AtomicFile.h"
#include "FileIdentity.h"

#include <QDateTime>
#include <QDir>
#include <QRegularExpression>
#include <QSet>

namespace abissora {

namespace {

/// "savedEquipment-20261121T040302Z.json", of a second one in the same second "…Z-2.json".
std::optional<EarlierState> readSingleFile(const QFileInfo& file)
{
    static const QRegularExpression form(u"^([A-Za-z0-9]+)-([0-9]{8}T[0-9]{6})Z(?:-([0-9]+))?\\.json$"_s);
    const QRegularExpressionMatch match = form.match(file.fileName());
    QDateTime time = QDateTime::fromString(match.captured(2), u"yyyyMMddTHHmmss"_s);
    time.setTimeSpec(Qt::UTC);
    if (!match.hasMatch() || !time.isValid())
        return std::nullopt;
    const std::chrono::milliseconds sinceEpoch(time.toMSecsSinceEpoch() + match.captured(3).toInt());
    return EarlierState{file.fileName(),
                        file.filePath(),
                        Instant(sinceEpoch),
                        Occasion::unreadable,
                        {{match.captured(1), file.filePath()}}};
}

} // namespace

QHash<QString, QString> storedFiles(const QString& folder)
{
    static const QRegularExpression plain(u"^[A-Za-z0-9]+$"_s);
    QHash<QString, QString> files;
    for (const QFileInfo& file : QDir(folder).entryInfoList({u"*.json"_s}, QDir::Files | QDir::System)) {
        if (plain.match(file.completeBaseName()).hasMatch())
            files.insert(file.completeBaseName(), file.filePath());
    }
    return files;
}

std::optional<EarlierState> readState(const QString& path)
{
    const QFileInfo info(path);
    if (info.isFile())
        return readSingleFile(info);
    const auto name = parseStateName(info.fileName());
    if (!name || !info.isDir())
        return std::nullopt;
    return EarlierState{info.fileName(), path, name->kept, name->occasion, storedFiles(path)};
}

QList<EarlierState> statesIn(const QString& folder)
{
    QList<EarlierState> states;
    for (const QFileInfo& entry : QDir(folder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
        if (auto state = readState(entry.filePath()))
            states.append(*std::move(state));
    }
    return states;
}

QList<SizedState> sized(const QList<EarlierState>& states)
{
    QSet<std::pair<quint64, quint64>> seen;
    QList<SizedState> all;
    for (const EarlierState& state : states) {
        qint64 bytes = 0;
        for (const QString& path : state.files) {
            const auto file = FileIdentity::of(path);
            if (!file)
                continue;
            const std::pair id(file->device, file->inode);
            if (file->inode == 0 || !seen.contains(id))
                bytes += file->size;
            seen.insert(id);
        }
        all.append({state, bytes});
    }
    return all;
}

bool haveSameBytes(const QString& path, const QString& other)
{
    const auto a = FileIdentity::of(path);
    const auto b = FileIdentity::of(other);
    if (!a || !b || a->size != b->size)
        return false;
    if (a->inode != 0 && a == b)
        return true;
    const auto bytes = AtomicFile::read(path);
    return bytes && bytes == AtomicFile::read(other);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"
#include "Commands.h"
#include "TemporaryRegister.h"

#include <QDirIterator>

namespace abissora::test {

struct Outcome
{
    int status = -1;
    QString out;
    QString error;
};

/// What was written into the file, which is closed.
inline QString contentOf(std::FILE* file)
{
    QByteArray text(100'000, '\0');
    const bool isAtStart = std::fseek(file, 0, SEEK_SET) == 0;
    text.truncate(isAtStart ? qsizetype(std::fread(text.data(), 1, std::size_t(text.size()), file)) : 0);
    std::fclose(file);
    return QString::fromUtf8(text);
}

inline Outcome run(const TemporaryRegister& files, const QStringList& arguments)
{
    const CommandStreams streams{std::tmpfile(), std::tmpfile()};
    const int status = runCommand(CommandLine::parse(arguments).value(), files.directories, streams);
    return {status, contentOf(streams.out), contentOf(streams.error)};
}

/// Days from now, which the commands take from the system's clock.
inline Equipment dueIn(int id, const QString& name, int days)
{
    Equipment item = equipment(id, name);
    item.serialNumber = u"SN-%1"_s.arg(id);
    item.nextServiceDate = Calendar().addDays(SystemClock().now(), days).value() + std::chrono::hours(1);
    return item;
}

inline void store(TemporaryRegister& files, const QList<Equipment>& items)
{
    static_cast<void>(files.storageManager(items));
}

inline QList<Equipment> stored(const TemporaryRegister& files)
{
    return decodeEquipment(files.content(registerFile)).value();
}

/// Every file below the register's folders with its bytes.
inline QMap<QString, QByteArray> everything(const TemporaryRegister& files)
{
    QMap<QString, QByteArray> found;
    QDirIterator all(files.directories.root(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        QFile file(all.next());
        found.insert(file.fileName(), file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    }
    return found;
}

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#pragma once

#include "Gui.h"
#include "Literals.h"
#include "ScreenFixture.h"

#include <QFile>
#include <QLineEdit>

namespace abissora::test {

/// A file outside the register, to be picked.
inline QString writePdf(const ScreenFixture& f, const QString& name)
{
    const QString path = f.folder.filePath(name);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write("%PDF-1.4 ") < 0 || file.write(name.toUtf8()) < 0)
        qFatal("the temporary folder cannot be written");
    return path;
}

/// Stores a file among the documents.
inline QString storedDocument(ScreenFixture& f, const QString& name)
{
    return f.documents.store(writePdf(f, name)).value();
}

/// A record done so many days before the fixed clock's time.
inline Maintenance makeRecord(const ScreenFixture& f, int id, int daysAgo, const QString& description)
{
    Maintenance record;
    record.id = SequentialIds::at(20'000 + id);
    record.date = f.inDays(-daysAgo);
    record.nextServiceDate = f.inDays(365 - daysAgo);
    record.description = description;
    record.performedBy = u"Blu Service"_s;
    record.isCompleted = true;
    return record;
}

} // namespace abissora::test

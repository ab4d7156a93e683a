// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenFixture.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QFile>
#include <QLabel>
#include <QLineEdit>

namespace abissora::test {

/// The visible widget of that name; a test that asks for a hidden or missing one ends.
template <typename Widget = QWidget>
Widget& part(QWidget& parent, const QString& name)
{
    for (Widget* found : parent.findChildren<Widget*>(name)) {
        if (found->isVisible())
            return *found;
    }
    qFatal("no visible widget called %s", qUtf8Printable(name));
}

inline bool isShown(const QWidget& parent, const QString& name)
{
    const auto found = parent.findChildren<QWidget*>(name);
    return std::any_of(found.begin(), found.end(), [](const QWidget* widget) { return widget->isVisible(); });
}

inline void click(QWidget& parent, const QString& name)
{
    QTest::mouseClick(&part(parent, name), Qt::LeftButton);
}

inline QString textOf(QWidget& parent, const QString& name)
{
    return part<QLabel>(parent, name).text();
}

inline void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

/// The dialog that is open over `parent`'s window.
template <typename Dialog = QDialog>
Dialog& openDialog(const QWidget& parent)
{
    for (Dialog* dialog : parent.window()->findChildren<Dialog*>()) {
        if (dialog->isVisible())
            return *dialog;
    }
    qFatal("no dialog is open");
}

inline bool isDialogOpen(const QWidget& parent)
{
    const auto dialogs = parent.window()->findChildren<QDialog*>();
    return std::any_of(dialogs.begin(), dialogs.end(), [](const QDialog* dialog) { return dialog->isVisible(); });
}

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
    record.performedBy = QStringLiteral("Blu Service");
    record.isCompleted = true;
    return record;
}

} // namespace abissora::test

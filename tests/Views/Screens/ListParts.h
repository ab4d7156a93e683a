// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentListView.h"
#include "EquipmentTableView.h"

#include <QAbstractButton>
#include <QDialog>
#include <QMenu>
#include <QTest>

/// Finding and using the parts of the register's screen.
namespace abissora::test {

template <typename Widget>
Widget& part(QWidget& parent, const char* name)
{
    auto* found = parent.findChild<Widget*>(QLatin1String(name));
    if (!found)
        qFatal("no widget called %s", name);
    return *found;
}

inline QStringList names(EquipmentListView& view)
{
    QStringList names;
    for (const Equipment& item : part<EquipmentTableView>(view, "equipmentTable").equipmentModel().equipment())
        names.append(item.name);
    return names;
}

inline QString cell(EquipmentListView& view, int row, int column)
{
    return part<EquipmentTableView>(view, "equipmentTable").model()->index(row, column).data().toString();
}

inline void settle()
{
    QCoreApplication::processEvents();
}

inline QDialog* openAlert(QWidget& view)
{
    const auto dialogs = view.window()->findChildren<QDialog*>();
    for (QDialog* dialog : dialogs) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

inline void press(QWidget& dialog, const QString& text)
{
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no button called ") + text));
}

inline QAction* action(const QMenu& menu, const QString& text)
{
    const auto actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == text; });
    return found == actions.end() ? nullptr : *found;
}

} // namespace abissora::test

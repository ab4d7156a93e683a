// SPDX-License-Identifier: MIT
#pragma once

#include "Alert.h"
#include "ContentView.h"
#include "EquipmentDetailView.h"
#include "EquipmentTableView.h"
#include "Gui.h"
#include "MainWindow.h"
#include "Pulse.h"
#include "Session.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QTimer>

namespace abissora::benchmark {

inline constexpr int patience = 60'000; ///< milliseconds for work that goes on elsewhere

inline QList<QDialog*> openDialogs()
{
    QList<QDialog*> dialogs;
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (auto* dialog = qobject_cast<QDialog*>(window); dialog != nullptr && dialog->isVisible())
            dialogs.append(dialog);
    }
    return dialogs;
}

inline QDialog& dialogInFront()
{
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr)
        qFatal("no dialog is open");
    return *dialog;
}

/// Uses the program and prints how long it did not answer.
class Person
{
public:
    Person(Session& session, Duration unit)
        : m_session(session)
        , m_unit(unit)
    {
        std::fprintf(stderr, "%-66s %10s %9s\n", "the longest time without an answer", "ms", "ratio");
    }

    MainWindow& window() { return m_session.mainWindow(); }
    ContentView& content() { return window().content(); }
    EquipmentTableView& table() { return test::existing<EquipmentTableView>(window(), u"equipmentTable"_s); }
    QWidget& detail() { return test::part<EquipmentDetailView>(window(), u"equipmentDetail"_s); }

    /// What is done, until nothing of it is left and `isDone`.
    template <typename Verb, typename IsDone = bool (*)()>
    void does(
        const char* what, Verb verb, IsDone isDone = [] { return true; })
    {
        test::settle();
        m_pulse.begin();
        verb();
        test::settle();
        if (!QTest::qWaitFor(isDone, patience))
            qFatal("%s: it does not end", what);
        test::settle();
        const Duration longest = m_pulse.longest();
        print(what, longest);
        if (longest > m_longest) {
            m_longest = longest;
            m_worst = what;
        }
    }

    void tells() const
    {
        std::fputc('\n', stderr);
        print(QByteArray("longest of all: " + m_worst).constData(), m_longest);
    }

    void menu(const QString& text) { command(*window().menuBar(), text)->trigger(); }

    /// In the file panel that is about to open.
    void willChoose(const QString& path, int format = 0)
    {
        QTimer::singleShot(0, &window(), [path, format] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !QTest::qWaitForWindowActive(dialog))
                qFatal("no file dialog");
            if (format > 0) {
                dialog->selectNameFilter(dialog->nameFilters().at(format));
                Q_EMIT dialog->filterSelected(dialog->nameFilters().at(format));
            }
            auto& field = test::existing<QLineEdit>(*dialog, u"fileNameEdit"_s);
            field.setFocus();
            field.setText(path);
            QTest::keyClick(&field, Qt::Key_Return);
        });
    }

    /// Closes notices and alerts by their safe button.
    static void dismiss()
    {
        while (QWidget* const modal = QApplication::activeModalWidget()) {
            modal->close();
            test::settle();
        }
    }

private:
    static QAction* command(const QWidget& bar, const QString& text)
    {
        for (QAction* menu : bar.actions()) {
            for (QAction* entry : menu->menu()->actions()) {
                if (entry->text().remove(u'&') == text)
                    return entry;
            }
        }
        qFatal("no menu has %s", qUtf8Printable(text));
    }
    void print(const char* what, Duration longest) const
    {
        std::fprintf(stderr, "%-66s %10.1f %9.2f\n", what, longest.count(), longest / m_unit);
    }

    Session& m_session;
    Duration m_unit;
    Pulse m_pulse;
    Duration m_longest{};
    QByteArray m_worst;
};

/// Of a dialog that is open, though what goes on may stand in front of it; null when there is none.
template <typename Widget = QWidget>
Widget* partOfDialog(const QString& objectName)
{
    for (const QDialog* dialog : openDialogs()) {
        if (auto* found = dialog->findChild<Widget*>(objectName))
            return found;
    }
    return nullptr;
}

inline bool isEnabledInDialog(const QString& objectName)
{
    const auto* const found = partOfDialog(objectName);
    return found != nullptr && found->isEnabled();
}

inline bool hasNotice()
{
    return qobject_cast<const Alert*>(QApplication::activeModalWidget()) != nullptr;
}

} // namespace abissora::benchmark

// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QTest>

/// Uses screens as a person does: by clicks and keys on what is visible and enabled. Parts are known by their object
/// names. What a test asks for in vain ends it, with the name of what is missing.
namespace abissora::test {

/// The visible widget of that name.
template <typename Widget = QWidget>
Widget& part(const QWidget& root, QAnyStringView name)
{
    for (Widget* found : root.findChildren<Widget*>(name.toString())) {
        if (found->isVisible())
            return *found;
    }
    qFatal("no visible widget called %s", qUtf8Printable(name.toString()));
}

/// The first widget of that name, hidden or not.
template <typename Widget = QWidget>
Widget& existing(const QWidget& root, QAnyStringView name)
{
    auto* const found = root.findChild<Widget*>(name.toString());
    if (found == nullptr)
        qFatal("no widget called %s", qUtf8Printable(name.toString()));
    return *found;
}

inline bool isShown(const QWidget& root, QAnyStringView name)
{
    const auto found = root.findChildren<QWidget*>(name.toString());
    return std::any_of(found.begin(), found.end(), [](const QWidget* widget) { return widget->isVisible(); });
}

inline QString textOf(const QWidget& root, QAnyStringView name)
{
    return part<QLabel>(root, name).text();
}

/// The visible widget of that name, which must be enabled.
template <typename Widget = QWidget>
Widget& usable(const QWidget& root, QAnyStringView name)
{
    Widget& found = part<Widget>(root, name);
    if (!found.isEnabled())
        qFatal("the widget called %s is disabled", qUtf8Printable(name.toString()));
    return found;
}

inline void click(const QWidget& root, QAnyStringView name)
{
    QTest::mouseClick(&usable(root, name), Qt::LeftButton);
}

/// Clicks the visible button that shows the text.
inline void press(const QWidget& root, const QString& text)
{
    for (QAbstractButton* button : root.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled() && button->text().remove(u'&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    }
    qFatal("no button says %s", qUtf8Printable(text));
}

/// Types into a field, over what it holds.
inline void type(const QWidget& root, QAnyStringView name, const QString& text)
{
    auto& field = usable(root, name);
    field.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    if (text.isEmpty())
        QTest::keyClick(&field, Qt::Key_Delete);
    QTest::keyClicks(&field, text);
}

/// The dialog that is open over the window of `place`; null when there is none.
template <typename Dialog = QDialog>
Dialog* findDialog(const QWidget& place)
{
    for (Dialog* dialog : place.window()->findChildren<Dialog*>()) {
        if (dialog->isVisible())
            return dialog;
    }
    return nullptr;
}

template <typename Dialog = QDialog>
Dialog& openDialog(const QWidget& place)
{
    Dialog* const dialog = findDialog<Dialog>(place);
    if (dialog == nullptr)
        qFatal("no dialog is open");
    return *dialog;
}

inline bool isDialogOpen(const QWidget& place)
{
    return findDialog(place) != nullptr;
}

/// The entry of a menu; null when it has none of that text.
inline QAction* action(const QMenu& menu, const QString& text)
{
    const auto actions = menu.actions();
    const auto found = std::find_if(actions.begin(), actions.end(), [&](QAction* a) { return a->text() == text; });
    return found == actions.end() ? nullptr : *found;
}

/// The texts of the visible labels, in the order in which they were made.
inline QStringList visibleLabels(const QWidget& root)
{
    QStringList texts;
    for (const QLabel* label : root.findChildren<QLabel*>()) {
        if (label->isVisible() && !label->text().isEmpty())
            texts.append(label->text());
    }
    return texts;
}

/// The object names that Tab visits from the focused widget on, until it is there again.
inline QStringList tabOrder(const QWidget& root)
{
    QStringList order;
    const QWidget* const first = root.focusWidget();
    do {
        order.append(root.focusWidget()->objectName());
        QTest::keyClick(root.focusWidget(), Qt::Key_Tab);
    } while (root.focusWidget() != first && order.size() < 200);
    return order;
}

/// Lets everything happen that was put off: deletions, redraws that were asked for, layouts, which pass a change upward
/// one level at a time. Comes back once nothing of the kind is left.
inline void settle()
{
    class Witness final : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            // What goes on for ever: the blinking of a cursor, the turning of an indicator.
            const auto kind = event->type();
            m_saw = m_saw || (kind != QEvent::Timer && kind != QEvent::UpdateRequest && kind != QEvent::Paint);
            return false;
        }
        bool saw() { return std::exchange(m_saw, false); }

    private:
        bool m_saw = false;
    } witness;
    qApp->installEventFilter(&witness);
    for (int pass = 0; pass < 200; ++pass) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
        if (!witness.saw())
            return;
    }
    qFatal("the window never comes to rest");
}

/// Shows a window and waits until it has the keyboard.
inline void activate(QWidget& window)
{
    window.show();
    window.activateWindow();
    if (!QTest::qWaitForWindowActive(&window))
        qFatal("the window did not become active");
    settle();
}

} // namespace abissora::test

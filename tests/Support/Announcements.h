// SPDX-License-Identifier: MIT
#pragma once

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QStringList>
#include <QWidget>

namespace abissora::test {

/// What screen readers read out at once, for as long as this exists: the notifications that come into sight.
class Announcements final : public QObject
{
public:
    Announcements() { qApp->installEventFilter(this); }

    /// In the order in which they were made.
    [[nodiscard]] const QStringList& texts() const { return m_texts; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->isWidgetType()) {
            const QAccessibleInterface* const shown = QAccessible::queryAccessibleInterface(watched);
            if (shown->role() == QAccessible::Notification)
                m_texts.append(shown->text(QAccessible::Name));
        }
        return false;
    }

private:
    QStringList m_texts;
};

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"
#include "Literals.h"

#include <QMetaMethod>
#include <QObject>
#include <QStringList>
#include <utility>

namespace abissora::test {

/// What a timeline says of the notification that every view model sends last.
inline const QString changed = u"<changed>"_s;

/// Prints and notifications of one object in the order in which they happen: a print as it is, a notification as the
/// signal's name in angle brackets.
class Timeline final : public QObject, public Console
{
    Q_OBJECT

public:
    void print(const QString& text) override { m_events.append(text); }

    /// Every signal without arguments that `object` declares, on top of any QObject's.
    void follow(const QObject& object)
    {
        const QMetaMethod note = metaObject()->method(metaObject()->indexOfSlot("note()"));
        const QMetaObject& meta = *object.metaObject();
        for (int i = QObject::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                connect(&object, meta.method(i), this, note);
        }
    }

    QStringList take() { return std::exchange(m_events, {}); }

private Q_SLOTS:
    void note()
    {
        const QMetaMethod signal = sender()->metaObject()->method(senderSignalIndex());
        m_events.append(u"<%1>"_s.arg(QLatin1String(signal.name())));
    }

private:
    QStringList m_events;
};

} // namespace abissora::test

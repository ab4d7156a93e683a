// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace abissora {

/// A long-lived object whose properties the screens show. It has one signal per property; `changed` follows once every
/// listener of that signal has heard it. Both are emitted at once, on the caller's thread.
class StateObject : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    void changed();

protected:
    template <typename Object>
    void announce(void (Object::*signal)())
    {
        Q_EMIT(static_cast<Object*>(this)->*signal)();
        Q_EMIT changed();
    }
};

} // namespace abissora

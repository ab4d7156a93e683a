// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

namespace abissora {

/// Shows where the focus is while a person works with keys, from the first moment on, and hides it from one who works
/// with the pointer: what was used last decides, for every window and across the changes of the active one, at which
/// the toolkit would forget it.
class FocusCue final : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

protected:
    /// For the application.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void show(QWidget& window) const;

    bool m_usesKeys = true;
};

} // namespace abissora

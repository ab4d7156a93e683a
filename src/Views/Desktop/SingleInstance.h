// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>

namespace abissora {

/// Lets one process at a time work on a register. A second one asks the first to come forward.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    /// `folder` is the register's; it is created when missing.
    explicit SingleInstance(const QString& folder, QObject* parent = nullptr);

    /// True for the process that may work on the register. False when another one does: it was then asked to come
    /// forward. A register whose folder cannot be locked, on a read-only disk for instance, is never refused.
    [[nodiscard]] bool acquire();

Q_SIGNALS:
    /// Another process was started on the same register.
    void activationRequested();

private:
    void askToComeForward() const;

    QLockFile m_lock;
    QLocalServer m_server;
    QString m_serverName;
};

} // namespace abissora

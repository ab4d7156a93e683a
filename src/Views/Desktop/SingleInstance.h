// SPDX-License-Identifier: MIT
#pragma once

#include <QLocalServer>
#include <QObject>
#include <chrono>

class QDeadlineTimer;
class QLocalSocket;

namespace abissora {

class FolderLock;

/// Lets one process at a time work on a register. A second one asks the first to come forward.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Outcome {
        /// This process works on the register. One that cannot be locked is never refused; the lock knows whether it
        /// may be written.
        Ours,
        /// Another process works on it, and its window comes forward.
        CameForward,
        /// Another process works on it, but does not answer.
        NoAnswer,
    };
    /// How long another process has to answer.
    static constexpr std::chrono::milliseconds usualPatience{3000};

    /// `lock` is the one of the register's folder and must outlive this.
    explicit SingleInstance(FolderLock& lock, std::chrono::milliseconds patience = usualPatience,
                            QObject* parent = nullptr);

    /// Waits for another process's answer, or for its end, without an event loop. May be called again. The other
    /// process is told the wish, one word or nothing.
    [[nodiscard]] Outcome acquire(const QString& wish = {});

Q_SIGNALS:
    /// Another process was started on the same register.
    void activationRequested();
    /// That process brought a word along, which may be of another release; follows activationRequested().
    void wished(const QString& wish);

private:
    void listen();
    void answerCallers();
    void hear(QLocalSocket* caller);
    [[nodiscard]] bool anotherComesForward(const QDeadlineTimer& deadline, const QString& wish) const;
    [[nodiscard]] QString serverName() const;

    FolderLock& m_lock;
    std::chrono::milliseconds m_patience;
    QLocalServer m_server{this};
};

} // namespace abissora

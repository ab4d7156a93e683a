// SPDX-License-Identifier: MIT
#pragma once

#include "ImmediateOutput.h"

#include <QByteArray>
#include <QString>
#include <chrono>
#include <memory>

class QSocketNotifier;

namespace abissora {

/// Where the running log goes. One call is one write: the text, a line feed, flushed.
class Console
{
public:
    virtual ~Console() = default;
    /// `text` is one line or several joined by line feeds, without the last one.
    virtual void print(const QString& text) = 0;
};

/// What is done for a reader of the log who does not keep up.
struct ReaderAllowance
{
    /// How much is kept for later, in bytes of whole lines; one line is kept however long it is.
    qsizetype kept = qsizetype{1024} * 1024;
    /// How long the end of the output waits for what is kept.
    std::chrono::milliseconds patience{1000};
    /// Whether what is kept follows from the event loop, where the thread that writes has one.
    bool watched = true;
};

/// Standard output as UTF-8, past the buffers of stdio and iostreams. Never waits for its reader: what is not taken at
/// once follows in order as soon as there is room, from the event loop where the thread has one, and at the next call.
/// Beyond what is kept for it, new lines are omitted; a line tells how many once everything before has been taken.
/// A closed or broken output is forgotten in silence, for good, provided that the process ignores SIGPIPE.
class StandardOutput final : public Console
{
public:
    StandardOutput();
    /// Another open file descriptor, which stays the caller's.
    explicit StandardOutput(int descriptor, ReaderAllowance allowance = {});
    ~StandardOutput() override;
    Q_DISABLE_COPY_MOVE(StandardOutput)

    void print(const QString& text) override;
    /// Waits for what is kept as the end would.
    void settle();

private:
    void take(QByteArrayView lines);
    /// Whole lines from the beginning, as many as there is room for.
    [[nodiscard]] qsizetype fitting(QByteArrayView lines) const;
    void writeKept();
    void forget();
    void watchForRoom(bool watch);

    ImmediateOutput m_output;
    ReaderAllowance m_allowance;
    QByteArray m_kept; ///< whole lines, but for the first, which may have been begun
    qsizetype m_omitted = 0;
    bool m_broken = false;
    std::unique_ptr<QSocketNotifier> m_room;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"

#include <QtGlobal>
#include <mutex>

namespace abissora {

/// What the toolkit has to say (qWarning() and its like, from any thread), written as StandardOutput writes: the
/// toolkit itself would wait for whoever reads. What is not taken at once follows with the next message, and at the
/// end. There is one such object at a time.
class ToolkitMessages
{
public:
    /// The descriptor stays the caller's.
    explicit ToolkitMessages(int descriptor, ReaderAllowance allowance = {});
    /// Messages go the toolkit's own way again.
    ~ToolkitMessages();
    Q_DISABLE_COPY_MOVE(ToolkitMessages)

    /// To be installed while the object lives; nothing where the toolkit's own way is no stream.
    [[nodiscard]] static QtMessageHandler handler();
    /// Writes a message in the form that the toolkit was told to use. It aborts the process after a fatal one.
    static void write(QtMsgType type, const QMessageLogContext& context, const QString& message);
    /// For what is said before the process ends: its reader is waited for as at the end.
    static void writeLast(const QString& text);

private:
    void print(const QString& text, bool last);

    std::mutex m_turn;
    StandardOutput m_output;
};

} // namespace abissora

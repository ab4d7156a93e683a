// SPDX-License-Identifier: MIT
#include "ToolkitMessages.h"

#include <atomic>

namespace abissora {

namespace {

std::atomic<ToolkitMessages*> current = nullptr;

/// Any thread may be the next to write, and only one of them could watch for room.
ReaderAllowance withoutWatch(ReaderAllowance allowance)
{
    allowance.watched = false;
    return allowance;
}

} // namespace

ToolkitMessages::ToolkitMessages(int descriptor, ReaderAllowance allowance)
    : m_output(descriptor, withoutWatch(allowance))
{
    current = this;
}

ToolkitMessages::~ToolkitMessages()
{
    qInstallMessageHandler(nullptr);
    current = nullptr;
}

QtMessageHandler ToolkitMessages::handler()
{
#if defined(Q_OS_UNIX) && !defined(Q_OS_DARWIN)
    return write;
#else
    return nullptr; // the system's log
#endif
}

void ToolkitMessages::write(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const QString text = qFormatLogMessage(type, context, message);
    // A form without anything is a wish for silence.
    if (ToolkitMessages* const messages = current; messages != nullptr && !text.isNull())
        messages->print(text, type == QtFatalMsg);
}

void ToolkitMessages::writeLast(const QString& text)
{
    if (ToolkitMessages* const messages = current; messages != nullptr)
        messages->print(text, true);
}

void ToolkitMessages::print(const QString& text, bool last)
{
    const std::lock_guard turn(m_turn);
    m_output.print(text);
    if (last)
        m_output.settle();
}

} // namespace abissora

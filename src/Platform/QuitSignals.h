// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <functional>
#include <memory>

namespace abissora {

/// The signals by which others end this process (SIGHUP, SIGINT, SIGTERM), as a wish: while this object lives the first
/// one calls `quit` from the event loop of the thread that made it. Whoever does not want to wait for what comes of it
/// sends SIGINT or SIGTERM once more, which end the process at once; a terminal that closes, or a session that ends,
/// sends SIGHUP as a second one by itself, which therefore changes nothing. What was ignored before stays ignored.
/// There is one such object at a time; on systems without signals it does nothing.
class QuitSignals
{
public:
    explicit QuitSignals(std::function<void()> quit);
    ~QuitSignals();
    Q_DISABLE_COPY_MOVE(QuitSignals)

private:
    class Watch;
    std::unique_ptr<Watch> m_watch;
};

} // namespace abissora

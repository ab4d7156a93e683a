// SPDX-License-Identifier: MIT
#include "Pulse.h"

#include <QCoreApplication>
#include <QTimerEvent>

namespace abissora::benchmark {

namespace {

constexpr std::chrono::microseconds between(300);

} // namespace

Pulse::Pulse()
    : m_asker([this] { ask(); })
{}

Pulse::~Pulse()
{
    m_isOver = true;
    m_answers.release();
    m_asker.join();
}

void Pulse::timerEvent(QTimerEvent* /*event*/)
{
    m_answers.release();
}

void Pulse::ask()
{
    while (!m_isOver) {
        const auto begin = std::chrono::steady_clock::now();
        // A timer's event: who waits for the program to come to rest does not count those.
        QCoreApplication::postEvent(this, new QTimerEvent(0));
        m_answers.acquire();
        const Duration waited = std::chrono::steady_clock::now() - begin;
        m_longest = std::max<double>(m_longest, waited.count());
        std::this_thread::sleep_for(between);
    }
}

} // namespace abissora::benchmark

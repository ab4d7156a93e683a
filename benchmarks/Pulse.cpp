// SPDX-License-Identifier: MIT
#include "Pulse.h"

#include <QCoreApplication>
#include <QTimerEvent>

namespace abissora::benchmark {

namespace {

constexpr unsigned long between = 300; ///< microseconds

} // namespace

Pulse::Pulse()
    : m_asker(QThread::create([this] { ask(); }))
{
    m_asker->start();
}

Pulse::~Pulse()
{
    m_isOver = true;
    m_answers.release();
    m_asker->wait();
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
        QThread::usleep(between);
    }
}

} // namespace abissora::benchmark

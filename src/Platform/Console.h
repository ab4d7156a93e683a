// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace abissora {

/// Where the running log goes. One call is one write: the text, a line feed, flushed.
class Console
{
public:
    virtual ~Console() = default;
    /// `text` is one line or several joined by line feeds, without the last one.
    virtual void print(const QString& text) = 0;
};

/// Standard output as UTF-8. A closed or broken output is forgotten in silence.
class StandardOutput final : public Console
{
public:
    void print(const QString& text) override;

private:
    bool m_broken = false;
};

} // namespace abissora

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

/// Standard output as UTF-8, past the buffers of stdio and iostreams. A closed or broken output is forgotten in
/// silence, for good, provided that the process ignores SIGPIPE. Waits for a slow reader.
class StandardOutput final : public Console
{
public:
    StandardOutput();
    /// Another open file descriptor, which stays the caller's.
    explicit StandardOutput(int descriptor);

    void print(const QString& text) override;

private:
    int m_descriptor;
    bool m_broken = false;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "Console.h"

#include <cstdio>

namespace abissora {

/// Where the commands say what they have to say.
struct CommandStreams
{
    std::FILE* out = stdout;
    std::FILE* error = stderr;
};

inline void say(std::FILE* stream, const QString& line)
{
    std::fputs(qUtf8Printable(line + u'\n'), stream);
}

/// What goes wrong beside a command itself.
class StreamConsole final : public Console
{
public:
    explicit StreamConsole(std::FILE* stream)
        : m_stream(stream)
    {}
    void print(const QString& text) override { say(m_stream, text); }

private:
    std::FILE* m_stream;
};

} // namespace abissora

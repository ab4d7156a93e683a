// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"

#include <QGuiApplication>
#include <QPalette>

namespace abissora::test {

/// Gives the application a palette of a scheme, and its former one back at the end.
class SchemeSwitch
{
public:
    explicit SchemeSwitch(Scheme scheme)
        : m_former(QGuiApplication::palette())
    {
        const Tokens& tokens = Tokens::of(scheme);
        QPalette palette(tokens.window);
        palette.setColor(QPalette::Window, tokens.window);
        palette.setColor(QPalette::WindowText, tokens.text);
        palette.setColor(QPalette::HighlightedText, tokens.onFill);
        QGuiApplication::setPalette(palette);
    }
    ~SchemeSwitch() { QGuiApplication::setPalette(m_former); }
    Q_DISABLE_COPY_MOVE(SchemeSwitch)

private:
    QPalette m_former;
};

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QFont>

namespace abissora::test {

/// Makes the application's text larger or smaller for as long as it lives. Declare it before the widgets.
class ScaledText
{
public:
    explicit ScaledText(double factor)
        : m_usual(QApplication::font())
    {
        QFont scaled = m_usual;
        scaled.setPointSizeF(m_usual.pointSizeF() * factor);
        QApplication::setFont(scaled);
    }
    ~ScaledText() { QApplication::setFont(m_usual); }
    Q_DISABLE_COPY_MOVE(ScaledText)

private:
    QFont m_usual;
};

} // namespace abissora::test

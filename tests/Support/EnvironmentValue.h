// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace abissora::test {

/// A variable of the environment, for as long as this lives.
class EnvironmentValue
{
public:
    /// `name` is a literal.
    EnvironmentValue(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        qputenv(name, value);
    }
    ~EnvironmentValue()
    {
        if (m_before.isNull())
            qunsetenv(m_name);
        else
            qputenv(m_name, m_before);
    }
    Q_DISABLE_COPY_MOVE(EnvironmentValue)

private:
    const char* m_name;
    QByteArray m_before;
};

} // namespace abissora::test

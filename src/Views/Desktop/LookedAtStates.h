// SPDX-License-Identifier: MIT
#pragma once

#include <QSettings>

namespace abissora {

/// Which kept states of the register a person has looked at, by name, across starts.
class LookedAtStates
{
public:
    /// The file may be the one that window sizes are kept in.
    explicit LookedAtStates(const QString& file);

    [[nodiscard]] bool contains(const QString& name) const;
    /// `existing` are the names of all states; others are forgotten.
    void add(const QString& name, const QStringList& existing);

private:
    QSettings m_settings;
};

} // namespace abissora

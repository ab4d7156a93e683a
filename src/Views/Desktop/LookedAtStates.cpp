// SPDX-License-Identifier: MIT
#include "LookedAtStates.h"

#include "Literals.h"
#include "OwnersFile.h"

namespace abissora {

namespace {

const QString namesKey = u"restore/lookedAt"_s;

} // namespace

LookedAtStates::LookedAtStates(const QString& file)
    : m_settings(file, QSettings::IniFormat)
{}

bool LookedAtStates::contains(const QString& name) const
{
    return m_settings.value(namesKey).toStringList().contains(name);
}

void LookedAtStates::add(const QString& name, const QStringList& existing)
{
    QStringList names = m_settings.value(namesKey).toStringList();
    if (names.contains(name))
        return;
    names.append(name);
    names.removeIf([&existing](const QString& known) { return !existing.contains(known); });
    makeOwnersFile(m_settings.fileName());
    m_settings.setValue(namesKey, names);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "StoredRegister.h"

#include "ApplicationDirectories.h"
#include "FolderAccess.h"
#include "StateContent.h"

namespace abissora {

namespace {

tl::expected<QList<Equipment>, QString> readItems(const ApplicationDirectories& directories)
{
    auto stored = readPresentContent(directories).equipment;
    for (const QString& folder : {directories.root(), directories.preferences()}) {
        if (const auto looked = checkFolder(folder); !looked)
            stored.error = looked.error().reason;
    }
    if (!stored.isStored && !stored.error)
        return tl::unexpected(noRegister(directories));
    if (stored.error)
        return tl::unexpected(
            u"Il registro non si può leggere: %1. Con «--check» si vede che cosa è danneggiato."_s.arg(*stored.error));
    return std::move(stored.records);
}

} // namespace

QString noRegister(const ApplicationDirectories& directories)
{
    return u"In «%1» non c'è un registro."_s.arg(directories.root());
}

StoredRegister::StoredRegister(const ApplicationDirectories& directories)
    : m_almanac{m_clock, Calendar(), DateFormat(DateFormat::userLocale(), Calendar())}
    , m_preferences(directories.preferences(), m_keeper)
    , m_types(m_preferences, m_symbols, m_console, m_ids)
    , m_settings(m_preferences, m_console)
    , m_equipment(readItems(directories))
{}

IoResult<void> StoredRegister::NothingWritten::beforeWriting(const QString& /*key*/, Occasion /*occasion*/)
{
    return tl::unexpected(IoError{u"Only read"_s});
}

IoResult<void> StoredRegister::NothingWritten::keepUnreadable(const QString& /*key*/)
{
    return tl::unexpected(IoError{u"Only read"_s});
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "Restoration.h"

#include "AtomicFile.h"
#include "RecordJson.h"
#include "StateFiles.h"

#include <QFileInfo>

namespace abissora {

namespace {

template <typename Decode, typename Salvage>
IoResult<QByteArray> readableList(const QByteArray& bytes, Decode decode, Salvage salvage)
{
    if (decode(bytes))
        return bytes; // with the members that this version does not know
    const auto salvaged = salvage(bytes);
    const auto json = encode(salvaged.records);
    if (salvaged.records.isEmpty() || !json)
        return tl::unexpected(IoError{u"Nothing in it can be read"_s});
    return *json;
}

/// What is to be written for a key: for damaged lists what is left of them.
IoResult<QByteArray> readable(const QString& key, const QString& path)
{
    return AtomicFile::read(path).and_then([&key](const QByteArray& bytes) -> IoResult<QByteArray> {
        if (key == registerKey)
            return readableList(bytes, decodeEquipment, salvageEquipment);
        if (key == typesKey)
            return readableList(bytes, decodeTypes, salvageTypes);
        return bytes;
    });
}

} // namespace

Restoration::Restoration(ApplicationDirectories directories, Generations& generations)
    : m_directories(std::move(directories))
    , m_generations(generations)
{}

IoResult<RestorableFiles> Restoration::read(const EarlierState& state)
{
    if (!state.files.contains(registerKey) && !state.files.contains(typesKey))
        return tl::unexpected(IoError{u"It holds neither a register nor types"_s});
    // Types that cannot be read are no reason to leave the register.
    const QString main = state.files.contains(registerKey) ? registerKey : typesKey;
    RestorableFiles files;
    for (auto file = state.files.cbegin(); file != state.files.cend(); ++file) {
        auto bytes = readable(file.key(), *file);
        if (bytes)
            files.insert(file.key(), *std::move(bytes));
        else if (file.key() == main)
            return tl::unexpected(bytes.error());
    }
    return files;
}

IoResult<void> Restoration::restore(const EarlierState& state)
{
    return read(state).and_then([&](const RestorableFiles& files) { return restore(state, files); });
}

IoResult<void> Restoration::restore(const EarlierState& state, const RestorableFiles& files)
{
    return m_generations.keep(Occasion::restoration, state.name)
        .and_then([this] { return AtomicFile::makeFolder(m_directories.backups()); })
        .and_then([&] { return AtomicFile::replace(journal(), state.name.toUtf8()); })
        .and_then([&] { return apply(state, files); })
        .and_then([this] { return AtomicFile::remove(journal()); });
}

void Restoration::complete()
{
    const auto name = AtomicFile::read(journal());
    if (!name)
        return;
    const auto state = m_generations.find(QString::fromUtf8(*name));
    // One that failed, on a full disk for instance, left a program that went on and may have stored more since.
    if (state && !m_generations.keep(Occasion::restoration, state->name))
        return;
    const auto files = state ? read(*state) : tl::unexpected(IoError());
    // What cannot be read now is no better later, when still more has been stored.
    if (!files || apply(*state, *files))
        static_cast<void>(AtomicFile::remove(journal()));
}

IoResult<void> Restoration::apply(const EarlierState& state, const RestorableFiles& files) const
{
    auto applied = AtomicFile::makeFolder(m_directories.preferences());
    for (auto file = files.cbegin(); applied && file != files.cend(); ++file)
        applied = AtomicFile::replace(m_directories.preferences() + u'/' + file.key() + u".json", *file);
    if (!state.files.contains(registerKey))
        return applied;
    const bool hasTypes = state.files.contains(typesKey);
    const QHash<QString, QString> present = storedFiles(m_directories.preferences());
    for (auto file = present.cbegin(); applied && file != present.cend(); ++file) {
        const bool isWanted = file.key() == typesKey || (file.key() == iconVersionKey && !hasTypes);
        if (!state.files.contains(file.key()) && !isWanted)
            applied = AtomicFile::remove(*file);
    }
    return applied;
}

} // namespace abissora

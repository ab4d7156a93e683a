// SPDX-License-Identifier: MIT
#include "PreferencesStore.h"

#include "Literals.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <utility>

namespace abissora {

namespace {

using nlohmann::json;

tl::unexpected<IoError> failure(int error)
{
    return tl::unexpected(IoError::fromErrno(error));
}

bool isPlainName(const QString& key)
{
    return !key.isEmpty() && std::ranges::all_of(key, [](QChar c) {
        return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z') || (c >= u'0' && c <= u'9');
    });
}

/// The value, or a discarded one. The parser itself would let a byte order mark and a trailing NUL pass.
json parsed(const QByteArray& bytes)
{
    if (bytes.contains('\0') || bytes.startsWith("\xEF\xBB\xBF"))
        return json(json::value_t::discarded);
    return json::parse(bytes.begin(), bytes.end(), nullptr, false);
}

QByteArray encoded(const json& value)
{
    return QByteArray::fromStdString(value.dump(-1, ' ', false, json::error_handler_t::replace));
}

} // namespace

PreferencesStore::PreferencesStore(QString folder, StateKeeper& keeper, Read read)
    : m_folder(std::move(folder))
    , m_keeper(keeper)
    , m_read(std::move(read))
{}

QString PreferencesStore::path(const QString& key) const
{
    return m_folder + u'/' + key + ".json"_L1;
}

IoResult<std::optional<QByteArray>> PreferencesStore::data(const QString& key) const
{
    if (!isPlainName(key))
        return failure(EINVAL);
    // Before the bytes: what changes while they are read then counts as changed.
    m_known.insert(key, FileIdentity::of(path(key)));
    auto bytes = m_read(path(key));
    if (bytes)
        return std::optional(*std::move(bytes));
    if (bytes.error() == IoError::fromErrno(ENOENT))
        return std::nullopt;
    return tl::unexpected(bytes.error());
}

IoResult<void> PreferencesStore::setData(const QString& key, const QByteArray& bytes, Occasion occasion)
{
    if (!isPlainName(key))
        return failure(EINVAL);
    if (m_hasGivenUp)
        return failure(ECANCELED);
    m_scalars.remove(key);
    const auto before = m_pending.constFind(key);
    const Pending value{bytes, before == m_pending.cend() ? occasion : std::max(occasion, before->occasion)};
    auto stored = write(key, value);
    if (stored) {
        m_pending.remove(key);
    } else {
        m_pending.insert(key, value);
        if (m_whenPending)
            m_whenPending();
    }
    return stored;
}

IoResult<void> PreferencesStore::write(const QString& key, const Pending& value)
{
    if (auto allowed = m_keeper.beforeWriting(key, weightiest(key, value.occasion)); !allowed)
        return allowed;
    auto stored =
        AtomicFile::makeFolder(m_folder).and_then([&] { return AtomicFile::replace(path(key), value.bytes); });
    // After a failure of the very last step the new file stands there too.
    if (const auto present = FileIdentity::of(path(key)))
        m_known.insert(key, present);
    if (stored)
        m_toKeep.remove(key);
    return stored;
}

Occasion PreferencesStore::weightiest(const QString& key, Occasion occasion) const
{
    occasion = std::max(occasion, m_toKeep.value(key, Occasion::change));
    const std::optional<FileIdentity> present = FileIdentity::of(path(key));
    return present && present != m_known.value(key) ? std::max(occasion, Occasion::foreignBytes) : occasion;
}

QHash<QString, QByteArray> PreferencesStore::pending() const
{
    QHash<QString, QByteArray> bytes;
    for (auto it = m_pending.cbegin(); it != m_pending.cend(); ++it)
        bytes.insert(it.key(), it->bytes);
    return bytes;
}

void PreferencesStore::giveUp()
{
    m_hasGivenUp = true;
    m_pending.clear();
}

QStringList PreferencesStore::retry()
{
    QStringList written;
    const QStringList keys = m_pending.keys();
    for (const QString& key : keys) {
        if (write(key, m_pending.value(key)))
            written.append(key);
    }
    for (const QString& key : std::as_const(written))
        m_pending.remove(key);
    return written;
}

QByteArray PreferencesStore::scalar(const QString& key) const
{
    const auto kept = m_scalars.constFind(key);
    if (kept != m_scalars.constEnd())
        return *kept;
    const auto stored = data(key);
    return *m_scalars.insert(key, stored && *stored ? **stored : QByteArray());
}

IoResult<void> PreferencesStore::setScalar(const QString& key, const QByteArray& json)
{
    if (!isPlainName(key))
        return failure(EINVAL);
    static_cast<void>(scalar(key)); // what it replaces was seen
    auto stored = setData(key, json);
    m_scalars.insert(key, json);
    return stored;
}

std::optional<bool> PreferencesStore::boolean(const QString& key) const
{
    const json value = parsed(scalar(key));
    return value.is_boolean() ? std::optional(value.get<bool>()) : std::nullopt;
}

std::optional<std::int64_t> PreferencesStore::integer(const QString& key) const
{
    const json value = parsed(scalar(key));
    if (value.is_number_unsigned()) {
        const auto number = value.get<std::uint64_t>();
        return std::in_range<std::int64_t>(number) ? std::optional(static_cast<std::int64_t>(number)) : std::nullopt;
    }
    if (value.is_number_integer())
        return value.get<std::int64_t>();
    if (value.is_number_float()) {
        // The bound itself is out on both sides: it may stand for a number just beyond 64 bits.
        const auto number = value.get<double>();
        if (std::trunc(number) == number && std::abs(number) < std::ldexp(1.0, 63))
            return static_cast<std::int64_t>(number);
    }
    return std::nullopt;
}

std::optional<QString> PreferencesStore::text(const QString& key) const
{
    const json value = parsed(scalar(key));
    return value.is_string() ? std::optional(QString::fromStdString(value.get_ref<const std::string&>()))
                             : std::nullopt;
}

bool PreferencesStore::hasValue(const QString& key) const
{
    return !parsed(scalar(key)).is_discarded();
}

IoResult<void> PreferencesStore::setBoolean(const QString& key, bool value)
{
    return setScalar(key, encoded(value));
}

IoResult<void> PreferencesStore::setInteger(const QString& key, std::int64_t value)
{
    return setScalar(key, encoded(value));
}

IoResult<void> PreferencesStore::setText(const QString& key, const QString& value)
{
    return setScalar(key, encoded(value.toStdString()));
}

IoResult<void> PreferencesStore::preserveUnreadable(const QString& key)
{
    if (!isPlainName(key))
        return failure(EINVAL);
    auto kept = m_keeper.keepUnreadable(key);
    if (kept)
        m_toKeep.remove(key);
    else
        m_toKeep.insert(key, Occasion::unreadable);
    return kept;
}

void PreferencesStore::keepUnknownMembers(const QString& key)
{
    m_toKeep.insert(key, Occasion::unknownMembers);
}

} // namespace abissora

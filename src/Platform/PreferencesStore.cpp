// SPDX-License-Identifier: MIT
#include "PreferencesStore.h"

#include "AtomicFile.h"
#include "Literals.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cmath>
#include <filesystem>
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

bool areOneFile(const QString& a, const QString& b)
{
    std::error_code error;
    return std::filesystem::equivalent(a.toStdU16String(), b.toStdU16String(), error);
}

/// Whether `folder` holds a copy of the file among those named `pattern`. `bytes` is nothing when it cannot be read.
bool hasCopy(const QString& folder, const QString& pattern, const QString& file, const std::optional<QByteArray>& bytes)
{
    const QFileInfoList candidates = QDir(folder).entryInfoList({pattern}, QDir::Files);
    return std::ranges::any_of(candidates, [&](const QFileInfo& candidate) {
        const QString path = candidate.absoluteFilePath();
        if (areOneFile(path, file))
            return true;
        return bytes && candidate.size() == bytes->size() && AtomicFile::read(path) == *bytes;
    });
}

} // namespace

PreferencesStore::PreferencesStore(QString folder, QString backupsFolder, const Clock& clock)
    : m_folder(std::move(folder))
    , m_backupsFolder(std::move(backupsFolder))
    , m_clock(clock)
{}

QString PreferencesStore::path(const QString& key) const
{
    return m_folder + u'/' + key + ".json"_L1;
}

IoResult<std::optional<QByteArray>> PreferencesStore::data(const QString& key) const
{
    if (!isPlainName(key))
        return failure(EINVAL);
    auto bytes = AtomicFile::read(path(key));
    if (bytes)
        return std::optional(*std::move(bytes));
    if (bytes.error() == IoError::fromErrno(ENOENT))
        return std::nullopt;
    return tl::unexpected(bytes.error());
}

IoResult<void> PreferencesStore::setData(const QString& key, const QByteArray& bytes)
{
    if (!isPlainName(key))
        return failure(EINVAL);
    if (m_unpreserved.contains(key)) {
        if (auto kept = preserveUnreadable(key); !kept)
            return kept;
    }
    m_scalars.remove(key);
    return AtomicFile::makeFolder(m_folder).and_then([&] { return AtomicFile::replace(path(key), bytes); });
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
    const QByteArray before = scalar(key);
    auto stored = setData(key, json);
    m_scalars.insert(key, stored ? json : before);
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
    auto kept = keepCopy(key);
    if (kept)
        m_unpreserved.remove(key);
    else
        m_unpreserved.insert(key);
    return kept;
}

IoResult<void> PreferencesStore::keepCopy(const QString& key) const
{
    const QString source = path(key);
    const auto bytes = data(key);
    if (bytes && !*bytes)
        return {}; // nothing there
    if (hasCopy(m_backupsFolder, key + "-*.json"_L1, source, bytes.value_or(std::nullopt)))
        return {};
    if (auto made = AtomicFile::makeFolder(m_backupsFolder); !made)
        return made;

    const QDateTime now = QDateTime::fromMSecsSinceEpoch(m_clock.now().time_since_epoch().count(), Qt::UTC);
    const QString stem = m_backupsFolder + u'/' + key + u'-' + now.toString(u"yyyyMMddTHHmmssZ"_s);
    const IoError taken = IoError::fromErrno(EEXIST);
    QString target = stem + ".json"_L1;
    auto copied = AtomicFile::copy(source, target);
    for (int n = 2; !copied && copied.error() == taken; ++n) {
        target = stem + u"-%1.json"_s.arg(n);
        copied = AtomicFile::copy(source, target);
    }
    // A second name needs no space and no readable bytes; replacing the file later leaves it alone.
    if (!copied && AtomicFile::link(source, target))
        return {};
    return copied;
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "ArchiveManifest.h"

#include "ArchiveTerms.h"
#include "CountText.h"
#include "EarlierState.h"
#include "Literals.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QSet>
#include <nlohmann/json.hpp>

namespace abissora {

namespace {

using Json = nlohmann::ordered_json;

const QString kind = u"abissora-register"_s;
constexpr qsizetype longestName = 255;
constexpr qsizetype sumSize = 32;

std::string standard(const QString& text)
{
    return text.toStdString();
}

/// A file's own name, as it may stand in any folder of any system.
bool isPlainName(const QString& name)
{
    static const QRegularExpression special(u"[\\x{0}-\\x{1f}\\x{7f}-\\x{9f}/\\\\:]"_s);
    return !name.isEmpty() && name.toUtf8().size() <= longestName && !name.startsWith(u'.') && !name.contains(special);
}

bool isKeyFile(const QString& name)
{
    static const QRegularExpression form(u"^[A-Za-z0-9]{1,200}\\.json\\z"_s);
    return form.match(name).hasMatch();
}

/// "savedEquipment-20261121T040302Z.json", as earlier versions kept unreadable data.
bool isSingleState(const QString& name)
{
    static const QRegularExpression form(u"^[A-Za-z0-9]{1,200}-[0-9]{8}T[0-9]{6}Z(?:-[0-9]{1,9})?\\.json\\z"_s);
    return form.match(name).hasMatch();
}

qint64 number(const Json& object, const char* key)
{
    const auto found = object.find(key);
    constexpr std::uint64_t most = std::numeric_limits<qint64>::max();
    if (found == object.end() || !found->is_number_unsigned() || found->get<std::uint64_t>() > most)
        return -1;
    return found->get<qint64>();
}

QString text(const Json& object, const char* key)
{
    const auto found = object.find(key);
    return found != object.end() && found->is_string() ? QString::fromStdString(found->get<std::string>()) : QString();
}

const QString damagedList = u"L'elenco all'inizio della copia è danneggiato."_s;

IoResult<ArchivedFile> readFile(const Json& object)
{
    if (!object.is_object())
        return archived::refused(damagedList);
    ArchivedFile file{text(object, "name"), number(object, "size"),
                      QByteArray::fromHex(text(object, "sha256").toLatin1())};
    if (file.name.isEmpty() || file.size < 0 || file.sum.size() != sumSize)
        return archived::refused(damagedList);
    if (!isArchivedName(file.name))
        return archived::refused(u"La copia contiene un file con un nome che non è ammesso."_s);
    return file;
}

} // namespace

QString ArchiveCounts::text() const
{
    const QString documentsText = documents == 0   ? u"nessun documento"_s
                                  : documents == 1 ? u"1 documento"_s
                                                   : u"%1 documenti"_s.arg(documents);
    return QStringList{itemsText(items), recordsText(records), typesText(types), documentsText}.join(u", "_s);
}

bool isArchivedName(const QString& name)
{
    if (name.startsWith(archived::preferences))
        return isKeyFile(name.mid(archived::preferences.size()));
    if (name.startsWith(archived::documents))
        return isPlainName(name.mid(archived::documents.size()));
    if (name.startsWith(archived::oldDocuments))
        return isPlainName(name.mid(archived::oldDocuments.size()));
    if (!name.startsWith(archived::backups))
        return false;
    const QStringList parts = name.mid(archived::backups.size()).split(u'/');
    if (parts.size() == 1)
        return isSingleState(parts.first());
    return parts.size() == 2 && parseStateName(parts.first()) && !parts.first().endsWith(u'\n') &&
           isKeyFile(parts.last());
}

QByteArray ArchiveManifest::toJson() const
{
    const QDateTime time = QDateTime::fromMSecsSinceEpoch(created.time_since_epoch().count(), Qt::UTC);
    Json json{
        {"kind", standard(kind)},       {"format", newestFormat},
        {"version", standard(version)}, {"created", standard(time.toString(u"yyyy-MM-ddTHH:mm:ss'Z'"_s))},
        {"items", counts.items},        {"records", counts.records},
        {"types", counts.types},        {"documents", counts.documents},
        {"files", Json::array()},
    };
    for (const ArchivedFile& file : files)
        json["files"].push_back(
            {{"name", standard(file.name)}, {"size", file.size}, {"sha256", file.sum.toHex().toStdString()}});
    return QByteArray::fromStdString(json.dump(0)) + '\n';
}

IoResult<ArchiveManifest> ArchiveManifest::fromJson(const QByteArray& bytes)
{
    const Json json = Json::parse(bytes.begin(), bytes.end(), nullptr, false);
    if (!json.is_object() || text(json, "kind") != kind)
        return archived::refused(u"Questo file zip non è una copia di un registro."_s);
    const qint64 format = number(json, "format");
    if (format > newestFormat)
        return archived::refused(
            u"La copia è stata fatta con una versione più nuova di Abissora: per leggerla va aggiornato il "
            "programma."_s);
    QDateTime time = QDateTime::fromString(text(json, "created"), u"yyyy-MM-ddTHH:mm:ss'Z'"_s);
    time.setTimeSpec(Qt::UTC);
    ArchiveManifest manifest;
    manifest.version = text(json, "version");
    manifest.counts = {number(json, "items"), number(json, "records"), number(json, "types"),
                       number(json, "documents")};
    const auto& counts = manifest.counts;
    const auto files = json.find("files");
    if (format < 1 || !time.isValid() || std::min({counts.items, counts.records, counts.types, counts.documents}) < 0 ||
        files == json.end() || !files->is_array())
        return archived::refused(damagedList);
    manifest.created = Instant(std::chrono::milliseconds(time.toMSecsSinceEpoch()));

    QSet<QString> names;
    for (const Json& entry : *files) {
        auto file = readFile(entry);
        if (!file)
            return tl::unexpected(file.error());
        if (names.contains(file->name.toCaseFolded()))
            return archived::refused(u"La copia contiene due file con lo stesso nome."_s);
        names.insert(file->name.toCaseFolded());
        manifest.files.append(*std::move(file));
    }
    if (std::ranges::none_of(manifest.files,
                             [](const ArchivedFile& file) { return file.name == archived::registerFile; }))
        return archived::refused(u"Nella copia manca il registro."_s);
    return manifest;
}

qint64 ArchiveManifest::totalSize() const
{
    qint64 total = 0;
    for (const ArchivedFile& file : files) {
        if (file.size > std::numeric_limits<qint64>::max() - total)
            return std::numeric_limits<qint64>::max();
        total += file.size;
    }
    return total;
}

} // namespace abissora

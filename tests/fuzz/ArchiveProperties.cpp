// SPDX-License-Identifier: MIT
#include "ArchiveProperties.h"

#include "ArchiveReader.h"
#include "Literals.h"

#include <QSet>

namespace abissora::test {

namespace {

QString faultIn(const IoResult<ArchiveManifest>& manifest)
{
    constexpr qsizetype longest = 400;
    if (!manifest) {
        const QString& sentence = manifest.error().reason;
        return sentence.endsWith(u'.') && sentence.size() <= longest && !sentence.contains(u'\n')
                   ? QString()
                   : u"no sentence: "_s + sentence;
    }
    QSet<QString> names;
    for (const ArchivedFile& file : manifest->files) {
        if (!isArchivedName(file.name) || file.name.contains(".."_L1) || file.name.startsWith(u'/'))
            return u"a name that leads elsewhere: "_s + file.name;
        if (names.contains(file.name.toCaseFolded()))
            return u"a name twice: "_s + file.name;
        names.insert(file.name.toCaseFolded());
    }
    if (!names.contains(QString(archived::registerFile).toCaseFolded()))
        return u"no register"_s;
    const auto again = ArchiveManifest::fromJson(manifest->toJson());
    if (!again || *again != *manifest)
        return u"the same manifest is written in another way"_s;
    return {};
}

} // namespace

QString faultWithArchive(const QByteArray& bytes)
{
    const QString fault = faultIn(ArchiveReader::readBytes(bytes));
    return fault.isEmpty() ? faultIn(ArchiveManifest::fromJson(bytes)) : fault;
}

} // namespace abissora::test

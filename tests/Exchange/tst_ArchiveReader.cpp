// SPDX-License-Identifier: MIT
#include "ArchiveReader.h"
#include "Builders.h"
#include "GoOn.h"
#include "HandmadeZip.h"
#include "RegisterArchive.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QCryptographicHash>
#include <QTest>
#include <array>
#include <sys/stat.h>

using namespace abissora;
using test::always;

namespace {

const QByteArray list = "[]";
const QByteArray document = "%PDF-1.4";
const QString documentName = u"MaintenanceDocuments/a.pdf"_s;

ArchivedFile described(const QString& name, const QByteArray& bytes)
{
    return {name, bytes.size(), QCryptographicHash::hash(bytes, QCryptographicHash::Sha256)};
}

ArchiveManifest usualManifest()
{
    return {u"1.0"_s,
            test::at("2026-11-22T06:42:11Z"),
            {1, 2, 3, 4},
            {described(archived::registerFile, list), described(documentName, document)}};
}

test::HandmadeZip zipOf(const QByteArray& manifest)
{
    return {{{ArchiveManifest::entryName, manifest},
             {QByteArray(archived::registerFile.data()), list},
             {documentName.toUtf8(), document}}};
}

test::HandmadeZip usualZip()
{
    return zipOf(usualManifest().toJson());
}

QString sentenceOf(const QByteArray& bytes)
{
    const auto read = ArchiveReader::readBytes(bytes);
    return read ? QString() : read.error().reason;
}

QString sentenceOf(const test::HandmadeZip& zip)
{
    return sentenceOf(zip.bytes());
}

} // namespace

class tst_ArchiveReader : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsAsItSaysIsRead()
    {
        const auto read = ArchiveReader::readBytes(usualZip().bytes());
        QVERIFY2(read, qPrintable(read ? QString() : read.error().reason));
        QCOMPARE(*read, usualManifest());
    }

    void noCopies()
    {
        const QString sentence = u"Questo file non è una copia di un registro."_s;
        QCOMPARE(sentenceOf(QByteArray()), sentence);
        QCOMPARE(sentenceOf("[]"), sentence);
        QCOMPARE(sentenceOf(QByteArray(100'000'000, 'x')), sentence);
        QVERIFY(sentenceOf("PK\3\4" + QByteArray(100'000'000, '\0')).contains(u"danneggiata"_s));
        const QString other = u"Questo file zip non è una copia di un registro."_s;
        QCOMPARE(sentenceOf(test::HandmadeZip{{{"a.txt", "a"}}}), other);
        QCOMPARE(sentenceOf(zipOf("{}")), other);
        QCOMPARE(sentenceOf(zipOf("rubbish")), other);
        QCOMPARE(sentenceOf(zipOf(QByteArray(1'000'000, '['))), other);
        test::HandmadeZip late = usualZip();
        late.entries.append(late.entries.takeFirst());
        QCOMPARE(sentenceOf(late), other);
    }

    void everyCutIsNoticed()
    {
        const QByteArray whole = usualZip().bytes();
        for (qsizetype size = 0; size < whole.size(); ++size)
            QVERIFY2(!sentenceOf(whole.first(size)).isEmpty(), qPrintable(QString::number(size)));
    }

    void everyChangedByteOfAFileIsNoticed()
    {
        const QByteArray whole = usualZip().bytes();
        for (const QByteArray& part : {list, document}) {
            const qsizetype begin = whole.lastIndexOf(part, whole.indexOf("PK\1\2"));
            for (qsizetype i = begin; i < begin + part.size(); ++i) {
                QByteArray changed = whole;
                changed[i] = static_cast<char>(changed.at(i) ^ 1);
                QVERIFY(sentenceOf(changed).contains(u"danneggiat"_s));
            }
        }
    }

    void aSumThatDiffers()
    {
        ArchiveManifest manifest = usualManifest();
        manifest.files[1].sum = QByteArray(32, 'x');
        QCOMPARE(sentenceOf(zipOf(manifest.toJson())), u"«MaintenanceDocuments/a.pdf» nella copia è danneggiato."_s);
        manifest = usualManifest();
        ++manifest.files[1].size;
        QCOMPARE(sentenceOf(zipOf(manifest.toJson())), u"«MaintenanceDocuments/a.pdf» nella copia è danneggiato."_s);
        manifest.files[1].size = 3;
        QVERIFY(sentenceOf(zipOf(manifest.toJson())).contains(u"più grande di quanto annuncia"_s));
    }

    void aNewerFormatHasItsOwnSentence()
    {
        const QByteArray newer = usualManifest().toJson().replace("\"format\": 1", "\"format\": 2");
        QVERIFY(sentenceOf(zipOf(newer)).contains(u"versione più nuova"_s));
        const QByteArray none = usualManifest().toJson().replace("\"format\": 1", "\"format\": 0");
        QVERIFY(sentenceOf(zipOf(none)).contains(u"elenco all'inizio"_s));
    }

    void damagedManifests()
    {
        const QByteArray manifest = usualManifest().toJson();
        for (const auto& [part, instead] : std::initializer_list<std::pair<const char*, const char*>>{
                 {"\"items\": 1", "\"items\": -1"},
                 {"\"records\": 2", "\"records\": 1.5"},
                 {"\"size\": 2", "\"size\": 99999999999999999999"},
                 {"\"size\": 2", "\"size\": \"2\""},
                 {"\"sha256\": \"", "\"sha256\": \"0"},
                 {"2026-11-22T06:42:11Z", "gestern"},
                 {"\"files\": [", "\"files\": 3, \"others\": ["},
                 {"\"name\": \"pref", "\"nome\": \"pref"},
             }) {
            QByteArray damaged = manifest;
            damaged.replace(damaged.indexOf(part), QByteArrayView(part).size(), instead);
            QVERIFY(damaged != manifest);
            QVERIFY2(sentenceOf(zipOf(damaged)).contains(u"elenco all'inizio"_s), instead);
        }
        ArchiveManifest empty = usualManifest();
        empty.files.removeFirst();
        QCOMPARE(sentenceOf(zipOf(empty.toJson())), u"Nella copia manca il registro."_s);
    }

    void namesThatLeadElsewhere_data()
    {
        QTest::addColumn<QString>("name");
        for (const char* name : {"/etc/passwd",
                                 "../preferences/a.json",
                                 "preferences/../a.json",
                                 "preferences/a/b.json",
                                 "preferences/",
                                 "preferences/a.json\n",
                                 "preferences/a.txt",
                                 "MaintenanceDocuments/..",
                                 "MaintenanceDocuments/../a.pdf",
                                 "MaintenanceDocuments/a/b.pdf",
                                 "MaintenanceDocuments/a\\b.pdf",
                                 "MaintenanceDocuments/C:a.pdf",
                                 "MaintenanceDocuments/.hidden",
                                 "MaintenanceDocuments/a\nb.pdf",
                                 "C:/preferences/a.json",
                                 "C:\\preferences\\a.json",
                                 "windowstate.ini",
                                 "abissora.lock",
                                 "backups/restoring",
                                 "backups/a/a.json",
                                 "backups/20260301T100000.000Z-deleted-item/a.txt",
                                 "backups/20260301T100000.000Z-x/../a.json",
                                 "backups/documents/../a.pdf",
                                 "backups/documents/",
                                 "manifest.json",
                                 "Preferences/a.json",
                                 "//",
                                 "."})
            QTest::newRow(name) << QString::fromUtf8(name);
    }

    void namesThatLeadElsewhere()
    {
        QFETCH(QString, name);
        QVERIFY(!isArchivedName(name));
        ArchiveManifest manifest = usualManifest();
        manifest.files.append(described(name, document));
        test::HandmadeZip zip = zipOf(manifest.toJson());
        zip.entries.append({name.toUtf8(), document});
        QVERIFY2(sentenceOf(zip).contains(u"non è ammesso"_s), qPrintable(sentenceOf(zip)));
        // Nor as an entry that the manifest does not name.
        zip = usualZip();
        zip.entries.append({name.toUtf8(), document});
        QVERIFY(!sentenceOf(zip).isEmpty());
    }

    void namesOfARegister()
    {
        for (const QString& name :
             {u"preferences/darkMode.json"_s, u"MaintenanceDocuments/perché.pdf"_s, u"backups/documents/20260301T1-a"_s,
              u"backups/20260301T100000.000Z-deleted-item/savedEquipment.json"_s,
              u"backups/savedEquipment-20250102T030405Z-2.json"_s})
            QVERIFY2(isArchivedName(name), qPrintable(name));
        QVERIFY(!isArchivedName(u"MaintenanceDocuments/"_s + QString(256, u'a')));
        QVERIFY(!isArchivedName(u"MaintenanceDocuments/a\0b"_s));
    }

    void entriesThatDoNotBelongThere()
    {
        test::HandmadeZip zip = usualZip();
        zip.entries.append({"MaintenanceDocuments/b.pdf", document});
        QVERIFY(sentenceOf(zip).contains(u"non nomina"_s));
        zip = usualZip();
        zip.entries.append(zip.entries.last());
        QVERIFY(sentenceOf(zip).contains(u"due volte"_s));
        zip = usualZip();
        zip.entries.removeLast();
        QCOMPARE(sentenceOf(zip), u"Nella copia manca «MaintenanceDocuments/a.pdf»."_s);
        ArchiveManifest manifest = usualManifest();
        manifest.files.append(described(u"MaintenanceDocuments/A.PDF"_s, document));
        zip = zipOf(manifest.toJson());
        zip.entries.append({"MaintenanceDocuments/A.PDF", document});
        QCOMPARE(sentenceOf(zip), u"La copia contiene due file con lo stesso nome."_s);
    }

    void linksFoldersDevicesAndEncryptedEntries()
    {
        constexpr std::array<quint32, 5> special{0120777, 0040755, 0020600, 0060600, 0140600};
        for (const quint32 mode : special) {
            for (qsizetype i = 0; i < 3; ++i) {
                test::HandmadeZip zip = usualZip();
                zip.entries[i].mode = mode;
                const QString reason = i == 0 ? u"non è una copia"_s : u"qualcosa che non è un file"_s;
                QVERIFY2(sentenceOf(zip).contains(reason), qPrintable(QString::number(mode, 8) + sentenceOf(zip)));
            }
        }
        for (qsizetype i = 0; i < 3; ++i) {
            test::HandmadeZip zip = usualZip();
            zip.entries[i].flags = 0x0801;
            QVERIFY(sentenceOf(zip).contains(u"cifrato"_s));
        }
    }

    void moreThanItCouldHold()
    {
        ArchiveManifest manifest = usualManifest();
        manifest.files[1].size = std::numeric_limits<qint64>::max();
        QVERIFY(sentenceOf(zipOf(manifest.toJson())).contains(u"più dati di quanti"_s));
        manifest.files[1].size = qint64{10} << 30;
        QVERIFY(sentenceOf(zipOf(manifest.toJson())).contains(u"più dati di quanti"_s));
        // A manifest that is endless itself.
        QVERIFY(sentenceOf(zipOf(QByteArray(ArchiveManifest::mostBytes + 1, ' '))).contains(u"più grande"_s));
    }

    void filesThatCannotBeRead()
    {
        const QTemporaryDir folder;
        const auto sentence = [](const QString& path) {
            const auto read = ArchiveReader::read(path, always);
            return read ? QString() : read.error().reason;
        };
        QVERIFY(sentence(folder.filePath(u"none.zip"_s)).contains(u"No such file"_s));
        QVERIFY(sentence(folder.path()).contains(u"Is a directory"_s));
        const QString pipe = folder.filePath(u"pipe.zip"_s);
        QCOMPARE(::mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY(!sentence(pipe).isEmpty());
        QVERIFY(!beginsLikeZip(pipe));
        const QString path = folder.filePath(u"perché.zip"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(usualZip().bytes()) > 0);
        file.close();
        QCOMPARE(sentence(path), QString());
        QVERIFY(beginsLikeZip(path));
        const auto cancelled = ArchiveReader::read(path, [](qint64, qint64) { return false; });
        QCOMPARE(cancelled.error(), IoError::fromErrno(ECANCELED));
    }

    /// What was written is refused once any byte of what it holds differs.
    void aFlippedByteInARealCopy()
    {
        test::TemporaryRegister files;
        files.write(test::registerFile, encode(QList{test::equipment(1)}).value());
        const QTemporaryDir place;
        const QString path = place.filePath(u"copia.zip"_s);
        QVERIFY(RegisterArchive(files.directories).write(path, files.clock.now(), always));
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray whole = file.readAll();
        const auto manifest = ArchiveReader::readBytes(whole);
        QVERIFY(manifest);
        qsizetype refused = 0;
        for (qsizetype i = 0; i < whole.size(); ++i) {
            QByteArray changed = whole;
            changed[i] = static_cast<char>(changed.at(i) ^ 0x55);
            const auto read = ArchiveReader::readBytes(changed);
            // Times and the like may be any; what is read is the same or refused. Flipped figures of the manifest
            // that are no sums stay within what the deflated stream's own check allows.
            QVERIFY(!read || read->files == manifest->files);
            refused += read ? 0 : 1;
        }
        QVERIFY(refused > whole.size() / 2);
    }
};

ABISSORA_TEST(tst_ArchiveReader);
#include "tst_ArchiveReader.moc"

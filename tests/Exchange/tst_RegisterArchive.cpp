// SPDX-License-Identifier: MIT
#include "ArchiveReader.h"
#include "FailingCalls.h"
#include "GoOn.h"
#include "RegisterArchive.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QCryptographicHash>
#include <QTest>
#include <clocale>
#include <sys/stat.h>
#include <unistd.h>

using namespace abissora;
using test::always;

namespace {

const QString document = u"MaintenanceDocuments/00000000-0000-4000-9000-000000000001.pdf"_s;
const QString oldDocument = u"backups/documents/20260301T000000.000Z-00000000-0000-4000-9000-000000000002.pdf"_s;
const QString state = u"backups/20260301T100000.000Z-deleted-item/savedEquipment.json"_s;
const QString oldState = u"backups/savedEquipment-20250102T030405Z.json"_s;

QStringList namesIn(const ArchiveManifest& manifest)
{
    QStringList names;
    for (const ArchivedFile& file : manifest.files)
        names.append(file.name);
    return names;
}

/// Collects what a copy holds.
class Contents final : public ArchiveReader::Target
{
public:
    IoResult<void> open(const ArchiveManifest& /*manifest*/) override { return {}; }
    IoResult<void> begin(const ArchivedFile& file) override
    {
        m_name = file.name;
        return {};
    }
    IoResult<void> write(const char* bytes, qsizetype size) override
    {
        of[m_name].append(bytes, size);
        return {};
    }
    IoResult<void> end() override { return {}; }

    QHash<QString, QByteArray> of;

private:
    QString m_name;
};

} // namespace

class tst_RegisterArchive : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_files = std::make_unique<test::TemporaryRegister>();
        m_place = std::make_unique<QTemporaryDir>();
        m_files->write(test::registerFile,
                       encode(QList{test::equipmentWith(1, {test::maintenance(2)}), test::equipment(3)}).value());
        m_files->write(test::typesFile, encode(QList{test::equipmentType(1, u"Pinne"_s)}).value());
        m_files->write(u"preferences/darkMode.json"_s, "true");
        m_files->write(document, QByteArray("%PDF-1.4 ") + QByteArray(700'000, 'x'));
        m_files->write(oldDocument, "%PDF-1.4 old");
        m_files->write(state, encode(QList{test::equipment(1)}).value());
        m_files->write(oldState, "[");
    }

    void holdsTheWholeRegister()
    {
        const auto manifest = copy();
        QVERIFY2(manifest, qPrintable(manifest ? QString() : manifest.error().reason));
        QCOMPARE(namesIn(*manifest), QStringList({u"preferences/darkMode.json"_s, test::typesFile, test::registerFile,
                                                  document, oldDocument, state, oldState}));
        QCOMPARE(manifest->counts, (ArchiveCounts{2, 1, 1, 1}));
        QCOMPARE(manifest->created, test::at("2026-11-22T06:42:11Z"));
        QVERIFY(!manifest->version.isEmpty());

        Contents contents;
        const auto read = ArchiveReader::read(target(), always, &contents);
        QVERIFY(read);
        QCOMPARE(*read, *manifest);
        for (const ArchivedFile& file : read->files) {
            QCOMPARE(contents.of.value(file.name), m_files->content(file.name));
            QCOMPARE(file.size, contents.of.value(file.name).size());
            QCOMPARE(file.sum, QCryptographicHash::hash(contents.of.value(file.name), QCryptographicHash::Sha256));
        }
        QCOMPARE(filesInPlace(), QStringList(u"copia.zip"_s));
    }

    void documentsAreStoredAndListsMadeSmaller()
    {
        m_files->write(test::registerFile, "[" + QByteArray(700'000, ' ') + "]");
        QVERIFY(copy());
        const qint64 size = QFileInfo(target()).size();
        QVERIFY2(size > 700'000 && size < 720'000, qPrintable(QString::number(size)));
    }

    void whatIsNotFinishedHiddenOrNoFileStaysOut()
    {
        const qsizetype before = copy().value().files.size();
        m_files->write(u"preferences/.abissora-0123456789abcdef.tmp"_s, "half");
        m_files->write(u"MaintenanceDocuments/.abissora-0123456789abcdef.tmp"_s, "half");
        m_files->write(u"backups/.abissora-0123456789abcdef.tmp/savedEquipment.json"_s, "half");
        m_files->write(u"windowstate.ini"_s, "[window]");
        m_files->write(u"abissora.lock"_s, "1");
        m_files->write(u"backups/strange/savedEquipment.json"_s, "[]");
        QVERIFY(QFile::link(u"/etc/hostname"_s, m_files->path(u"MaintenanceDocuments/link.pdf"_s)));
        QCOMPARE(::mkfifo(qPrintable(m_files->path(u"MaintenanceDocuments/pipe.pdf"_s)), 0600), 0);
        QCOMPARE(::mkfifo(qPrintable(m_files->path(u"preferences/pipe.json"_s)), 0600), 0);
        QCOMPARE(copy().value().files.size(), before);
    }

    void namesOfAnyScriptInAnyLocale()
    {
        const QString name = u"MaintenanceDocuments/ricevuta perché no € 😀.pdf"_s;
        m_files->write(name, "%PDF");
        const QByteArray before = std::setlocale(LC_ALL, nullptr);
        std::setlocale(LC_ALL, "C");
        const auto manifest = copy();
        const auto read = ArchiveReader::read(target(), always);
        std::setlocale(LC_ALL, before.constData());
        QVERIFY2(manifest, qPrintable(manifest ? QString() : manifest.error().reason));
        QVERIFY(read && namesIn(*read).contains(name));
    }

    void namesThatNoCopyCanHold()
    {
        m_files->write(u"MaintenanceDocuments/a:b.pdf"_s, "%PDF");
        const auto refused = copy();
        QVERIFY(!refused && refused.error().reason.contains(u"a:b.pdf"_s));
        QVERIFY(QFile::remove(m_files->path(u"MaintenanceDocuments/a:b.pdf"_s)));
        m_files->write(u"MaintenanceDocuments/a.pdf"_s, "%PDF");
        m_files->write(u"MaintenanceDocuments/A.pdf"_s, "%PDF");
        const auto twice = copy();
        QVERIFY(!twice && twice.error().reason.contains(u"maiuscole"_s));
        QCOMPARE(filesInPlace(), QStringList());
    }

    void aSaveMeanwhileIsWaitedFor()
    {
        // In each third of the work: what is summed up, written, read back.
        for (const double when : {0.1, 0.5, 0.9}) {
            int saves = 0;
            const QByteArray later = encode(QList{test::equipment(9, u"Nuovo %1"_s.arg(when))}).value();
            const auto manifest = copy([&](qint64 done, qint64 whole) {
                if (saves == 0 && static_cast<double>(done) >= when * static_cast<double>(whole)) {
                    ++saves;
                    return bool(m_files->preferences.setData(registerKey, later));
                }
                return true;
            });
            QCOMPARE(saves, 1);
            QVERIFY2(manifest, qPrintable(manifest ? QString() : manifest.error().reason));
            Contents contents;
            QVERIFY(ArchiveReader::read(target(), always, &contents));
            // The last save may come after the last look.
            QCOMPARE(contents.of.value(test::registerFile), when < 0.6 ? later : contents.of.value(test::registerFile));
            QCOMPARE(manifest->counts.items, decodeEquipment(contents.of.value(test::registerFile)).value().size());
        }
    }

    void aSettingThatIsNewMeanwhileIsInTheCopy()
    {
        bool isNew = false;
        const auto manifest = copy([&](qint64 done, qint64 whole) {
            if (!isNew && done > whole / 2) {
                isNew = true;
                m_files->write(u"preferences/currency.json"_s, "\"€\"");
            }
            return true;
        });
        QVERIFY(isNew && manifest && namesIn(*manifest).contains(u"preferences/currency.json"_s));
    }

    void aDocumentThatIsArchivedMeanwhileIsInTheCopy()
    {
        bool isMoved = false;
        const auto manifest = copy([&](qint64 done, qint64 whole) {
            if (!isMoved && done > whole / 2) {
                isMoved = true;
                m_files->archive.archive(QFileInfo(document).fileName());
            }
            return true;
        });
        QVERIFY2(manifest, qPrintable(manifest ? QString() : manifest.error().reason));
        QVERIFY(isMoved);
    }

    void aRegisterThatNeverRestsIsAnError()
    {
        int saves = 0;
        const auto refused = copy([&](qint64, qint64) {
            return bool(m_files->preferences.setData(registerKey, encode(QList{test::equipment(++saves)}).value()));
        });
        QVERIFY(!refused);
        QVERIFY(refused.error().reason.contains(u"continua a cambiare"_s));
        QCOMPARE(filesInPlace(), QStringList());
    }

    void aCancelledCopyLeavesWhatWasThere()
    {
        put("mine");
        for (const double when : {0.0, 0.3, 0.6, 0.9, 1.0}) {
            const auto cancelled = copy([&](qint64 done, qint64 whole) {
                return static_cast<double>(done) < when * static_cast<double>(whole);
            });
            QVERIFY(!cancelled);
            QCOMPARE(cancelled.error(), IoError::fromErrno(ECANCELED));
            QCOMPARE(filesInPlace(), QStringList(u"copia.zip"_s));
            QCOMPARE(contentOfTarget(), QByteArray("mine"));
        }
    }

    void everyFailingCallLeavesWhatWasThere()
    {
        put("mine");
        unsigned changes = 0;
        {
            const test::FailingCalls none("change@100000=EIO", m_place->path());
            QVERIFY(copy());
            changes = test::FailingCalls::changes();
        }
        QVERIFY(changes >= 4);
        for (const char* error : {"ENOSPC", "EIO"}) {
            for (unsigned i = 1; i <= changes; ++i) {
                put("mine");
                const QByteArray plan = "change@" + QByteArray::number(i) + "=" + error;
                const test::FailingCalls failing(plan.constData(), m_place->path());
                const auto written = copy();
                const QByteArray now = contentOfTarget();
                // Only the very last step may fail with the new file in its place.
                QVERIFY2(now == "mine" || now.startsWith("PK"), plan.constData());
                QVERIFY2(written ? now.startsWith("PK") : now == "mine" || i == changes, plan.constData());
                QCOMPARE(filesInPlace(), QStringList(u"copia.zip"_s));
            }
        }
    }

    void placesWhereNoCopyCanStand()
    {
        const auto refuses = [this](const QString& path, const QString& part) {
            const auto refused = RegisterArchive(m_files->directories).write(path, m_now, always);
            return !refused && refused.error().reason.contains(part);
        };
        QVERIFY(refuses(m_files->path(u"copia.zip"_s), u"cartella del registro"_s));
        QVERIFY(refuses(m_files->path(u"backups/copia.zip"_s), u"cartella del registro"_s));
        QVERIFY(QFile::link(m_files->path(u"in.zip"_s), m_place->filePath(u"link.zip"_s)));
        QVERIFY(refuses(m_place->filePath(u"link.zip"_s), u"cartella del registro"_s));
        QVERIFY(refuses(m_place->path(), u"Is a directory"_s));
        QVERIFY(refuses(m_place->filePath(u"none/copia.zip"_s), u"No such file"_s));
        QVERIFY(refuses(u"/dev/full"_s, u"/dev/full"_s));
        const test::TemporaryRegister empty;
        const auto nothing = RegisterArchive(empty.directories).write(target(), m_now, always);
        QVERIFY(!nothing && nothing.error().reason.contains(u"non c'è un registro"_s));
        m_files->write(u"backups/restoring"_s, "x");
        QVERIFY(refuses(target(), u"a metà"_s));
        QCOMPARE(filesInPlace(), QStringList(u"link.zip"_s));
    }

    void aCopyReplacesAnotherAndFollowsALink()
    {
        put("mine");
        QVERIFY(QFile::setPermissions(target(), QFile::ReadOwner | QFile::WriteOwner));
        QVERIFY(QFile::link(target(), m_place->filePath(u"link.zip"_s)));
        QVERIFY(RegisterArchive(m_files->directories).write(m_place->filePath(u"link.zip"_s), m_now, always));
        QVERIFY(QFileInfo(m_place->filePath(u"link.zip"_s)).isSymLink());
        QVERIFY(contentOfTarget().startsWith("PK"));
        QVERIFY(!QFile::permissions(target()).testFlag(QFile::ReadGroup));
    }

    void moreFilesThanAShortCountHolds()
    {
        constexpr int many = 66'000;
        for (int i = 0; i < many; ++i)
            m_files->write(u"MaintenanceDocuments/%1.pdf"_s.arg(i), "%PDF");
        const auto manifest = copy();
        QVERIFY2(manifest, qPrintable(manifest ? QString() : manifest.error().reason));
        QCOMPARE(manifest->counts.documents, many + 1);
    }

private:
    IoResult<ArchiveManifest> copy(const RegisterArchive::GoesOn& goesOn = always)
    {
        return RegisterArchive(m_files->directories).write(target(), m_now, goesOn);
    }
    QString target() const { return m_place->filePath(u"copia.zip"_s); }
    void put(const QByteArray& bytes) const
    {
        QFile file(target());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    QByteArray contentOfTarget() const
    {
        QFile file(target());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    QStringList filesInPlace() const
    {
        return QDir(m_place->path()).entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    const Instant m_now = test::at("2026-11-22T06:42:11.500Z");
    std::unique_ptr<test::TemporaryRegister> m_files;
    std::unique_ptr<QTemporaryDir> m_place;
};

ABISSORA_TEST(tst_RegisterArchive);
#include "tst_RegisterArchive.moc"

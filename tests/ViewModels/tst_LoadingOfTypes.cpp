// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"
#include "FileSizeLimit.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

const QString versionFile = u"preferences/iconSetVersion.json"_s;
const QString backups = u"backups"_s;

struct Row
{
    QStringView name;
    QStringView icon;
    QStringView color;
    std::int64_t days = 0;
};

constexpr std::array standard{
    Row{u"Erogatore", u"dive.regulator", u"blue", 365},
    Row{u"GAV", u"dive.bcd", u"orange", 365},
    Row{u"Bombola", u"dive.tank", u"gray", 365},
    Row{u"Maschera", u"dive.mask", u"purple", 365},
    Row{u"Pinne", u"dive.fins", u"green", 365},
    Row{u"Muta", u"dive.wetsuit", u"red", 365},
    Row{u"Muta Stagna", u"dive.drysuit", u"indigo", 365},
    Row{u"Computer Subacqueo", u"dive.computer", u"cyan", 730},
    Row{u"Torcia", u"dive.light", u"yellow", 365},
    Row{u"Bussola", u"dive.compass", u"teal", 365},
    Row{u"Profondimetro", u"gauge.with.dots.needle.bottom.0percent", u"mint", 365},
    Row{u"Manometro", u"dive.gauge", u"gray", 365},
    Row{u"Cintura Zavorra", u"dive.weightbelt", u"brown", 365},
    Row{u"Kit Pronto Soccorso", u"cross.case.fill", u"red", 365},
    Row{u"Ossigeno", u"lungs.fill", u"green", 365},
    Row{u"Altro", u"questionmark.circle.fill", u"gray", 365},
};

/// The sixteen types with ids counted from `firstId` on.
QList<EquipmentTypeModel> standardTypes(int firstId)
{
    QList<EquipmentTypeModel> types;
    for (const Row& row : standard)
        types.append({test::SequentialIds::at(firstId + int(types.size())), row.name.toString(), row.icon.toString(),
                      row.color.toString(), row.days, true});
    return types;
}

} // namespace

class tst_LoadingOfTypes : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
    }

    void firstRun()
    {
        const auto types = load();
        QCOMPARE(types->types(), standardTypes(1));
        QCOMPARE(decodeTypes(m_files->content(test::typesFile)).value(), standardTypes(1));
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_files->console.calls(), QStringList());
        QVERIFY(!types->selectedType());
        QCOMPARE(types->searchText(), QString());
        QVERIFY(!types->isAddingType());
    }

    void aSecondRunChangesNothing()
    {
        const auto before = load()->types();
        const QByteArray bytes = m_files->content(test::typesFile);
        QCOMPARE(load()->types(), before);
        QCOMPARE(m_files->content(test::typesFile), bytes);
    }

    void storedTypesComeAsTheyStand()
    {
        QList<EquipmentTypeModel> stored{test::equipmentType(1, u"Scooter"_s), test::equipmentType(2, u"Arpione"_s)};
        stored[1].isActive = false;
        m_files->write(test::typesFile, encode(stored).value());
        QCOMPARE(load()->types(), stored);
        m_files->write(test::typesFile, "[]");
        QCOMPARE(load()->types(), QList<EquipmentTypeModel>());
        QCOMPARE(m_files->content(test::typesFile), QByteArray("[]"));
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_files->console.calls(), QStringList());
    }

    void whatCannotBeDecodedIsReplacedAndKept_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("error");
        const QByteArray valid =
            encode(QList{test::equipmentType(1, u"Boa"_s), test::equipmentType(2, u"Faro"_s)}).value();
        QTest::newRow("one without a colour")
            << QByteArray(valid).replace(valid.lastIndexOf(R"("color":"gray",)"), 15, "")
            << u"Error loading types: [1].color: the member is missing"_s;
        QTest::newRow("interval as a text")
            << QByteArray(valid).replace(":180", ":\"180\"")
            << u"Error loading types: [0].serviceIntervalDays: expected a whole number of 64 bits, "
               "found a string"_s;
        QTest::newRow("without isActive") << QByteArray(valid).replace(R"(,"isActive":true)", "")
                                          << u"Error loading types: [0].isActive: the member is missing"_s;
        QTest::newRow("no JSON") << QByteArray("?") << u"Error loading types: parse error at line 1"_s;
        QTest::newRow("nothing") << QByteArray() << u"Error loading types: parse error at line 1"_s;
    }

    void whatCannotBeDecodedIsReplacedAndKept()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, error);
        m_files->write(test::typesFile, bytes);
        m_files->write(versionFile, "2");
        QCOMPARE(load()->types(), standardTypes(1));
        QCOMPARE(m_files->console.calls().size(), 1);
        QVERIFY2(m_files->console.text().startsWith(error), qPrintable(m_files->console.text()));
        QCOMPARE(decodeTypes(m_files->content(test::typesFile)).value(), standardTypes(1));
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_files->names(backups), QStringList{u"20260615T100000.000Z-unreadable"_s});
        QCOMPARE(m_files->content(u"backups/20260615T100000.000Z-unreadable/equipmentTypes.json"_s), bytes);
    }

    void withoutACopyNothingIsOverwritten()
    {
        m_files->write(test::typesFile, "broken");
        m_files->write(backups, "in the way");
        const auto types = load();
        QCOMPARE(types->types(), standardTypes(1));
        const QString failed = u"Error saving types: "_s + IoError::fromErrno(EEXIST).reason;
        QCOMPARE(m_files->console.calls().size(), 3);
        QVERIFY(m_files->console.calls().at(0).startsWith(u"Error loading types: "_s));
        QCOMPARE(m_files->console.calls().mid(1), QStringList({failed, failed}));
        QCOMPARE(m_files->content(test::typesFile), QByteArray("broken"));

        QVERIFY(QFile::remove(m_files->path(backups)));
        types->saveTypes();
        QCOMPARE(m_files->names(backups).size(), 1);
        QCOMPARE(decodeTypes(m_files->content(test::typesFile)).value(), standardTypes(1));
    }

    void aFullDiskIsReported()
    {
        const auto types = load();
        const QByteArray before = m_files->content(test::typesFile);
        {
            const test::FileSizeLimit limit(100);
            types->updateType(types->types().at(0));
            types->addType(test::equipmentType(99, u"Boa"_s));
        }
        const QString failed = u"Error saving types: "_s + IoError::fromErrno(EFBIG).reason;
        QCOMPARE(m_files->console.calls(), QStringList({failed, failed}));
        QCOMPARE(types->types().size(), 17);
        QCOMPARE(m_files->content(test::typesFile), before);
    }

private:
    std::unique_ptr<EquipmentTypeViewModel> load()
    {
        return std::make_unique<EquipmentTypeViewModel>(m_files->preferences, m_symbols, m_files->console,
                                                        m_files->ids);
    }

    std::optional<test::TemporaryRegister> m_files;
    test::FakeSymbolLibrary m_symbols;
};

ABISSORA_TEST(tst_LoadingOfTypes);
#include "tst_LoadingOfTypes.moc"

// SPDX-License-Identifier: MIT
#include "EquipmentTypeViewModel.h"
#include "Literals.h"
#include "RecordJson.h"
#include "TemporaryRegister.h"
#include "TestRunner.h"

#include <QSignalSpy>
#include <QTest>

using namespace abissora;

namespace {

const QString versionFile = u"preferences/iconSetVersion.json"_s;
const QString unknownIcon = u"questionmark.circle.fill"_s;

constexpr std::pair<QStringView, QStringView> replacements[] = {
    {u"wind.circle.fill", u"dive.regulator"},
    {u"person.wave.2.circle.fill", u"dive.bcd"},
    {u"water.waves.and.arrow.up", u"dive.bcd"},
    {u"cylinder.fill", u"dive.tank"},
    {u"face.mask.fill", u"dive.mask"},
    {u"facemask.fill", u"dive.mask"},
    {u"shoe.fill", u"dive.fins"},
    {u"figure.pool.swim", u"dive.fins"},
    {u"person.fill", u"dive.wetsuit"},
    {u"person.fill.turn.down", u"dive.drysuit"},
    {u"desktopcomputer", u"dive.computer"},
    {u"lightbulb.fill", u"dive.light"},
    {u"flashlight.on.fill", u"dive.light"},
    {u"safari.fill", u"compass.drawing"},
    {u"gauge.with.dots.needle.bottom.0percent", u"gauge.with.dots.needle.bottom.50percent"},
    {u"fishing.rod", u"lasso"},
    {u"bag.fill", u"balloon.fill"},
    {u"belt", u"scalemass.fill"},
    {u"lifebuoy.fill", u"circle.dotted.circle.fill"},
    {u"cross.fill", u"lungs.fill"},
    {u"flag.fill", u"flag.checkered"},
    {u"waveform.circle.fill", u"antenna.radiowaves.left.and.right"},
    {u"bell.fill", u"bell.and.waves.left.and.right.fill"},
    {u"figure.dive", u"figure.water.fitness"},
    {u"nose.fill", u"fish.fill"},
    {u"wrench.circle.fill", u"wrench.fill"},
    {u"drop.circle.fill", u"bubbles.and.sparkles.fill"},
    {u"compass.drawing", u"dive.compass"},
    {u"gauge.with.dots.needle.bottom.50percent", u"dive.gauge"},
    {u"scissors", u"dive.knife"},
    {u"lasso", u"dive.reel"},
    {u"scalemass.fill", u"dive.weightbelt"},
    {u"circle.dotted.circle.fill", u"dive.lifejacket"},
    {u"megaphone.fill", u"dive.whistle"},
    {u"fish.fill", u"dive.snorkel"},
};

/// Knows every symbol.
class AnySymbol final : public SymbolLibrary
{
public:
    [[nodiscard]] bool contains(const QString& /*name*/) const override { return true; }
};

} // namespace

class tst_IconMigration : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        test::TestCase::init();
        m_files.emplace();
    }

    void everyOldIconTakesOneStep()
    {
        QCOMPARE(std::size(replacements), std::size_t(35));
        QList<EquipmentTypeModel> stored;
        for (const auto& [old, current] : replacements)
            stored.append(type(u"Boa"_s, old.toString()));
        const auto types = load(stored, AnySymbol());
        for (std::size_t i = 0; i < std::size(replacements); ++i)
            QCOMPARE(types.at(qsizetype(i)).icon, replacements[i].second.toString());
        QCOMPARE(storedTypes().value(), types);
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
        QCOMPARE(m_files->console.calls(), QStringList());
    }

    void oneType_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("icon");
        QTest::addColumn<QString>("migrated");
        const auto row = [](const char* title, const char* name, const char* icon, const char* migrated) {
            QTest::newRow(title) << QString::fromUtf8(name) << QString::fromUtf8(icon) << QString::fromUtf8(migrated);
        };
        const char* unknown = "questionmark.circle.fill";
        row("default with an old icon", "GAV", "person.wave.2.circle.fill", "dive.bcd");
        row("default with an old icon of another kind", "GAV", "cylinder.fill", "dive.bcd");
        row("default with a chosen symbol", "GAV", "star.fill", "dive.bcd");
        row("default with another picture", "GAV", "dive.tank", "dive.bcd");
        row("default in lower case", "gav", "star.fill", "star.fill");
        row("default with a space", "GAV ", "dive.tank", "dive.tank");
        row("default whose icon is no picture", "Profondimetro", "gauge.with.dots.needle.bottom.0percent",
            "gauge.with.dots.needle.bottom.50percent");
        row("such a one with a chosen picture", "Profondimetro", "dive.gauge", "dive.gauge");
        row("such a one with an unknown icon", "Ossigeno", "nothing.fill", unknown);
        row("such a one with an old icon", "Ossigeno", "cross.fill", "lungs.fill");
        row("own type, known symbol", "Boa", "star.fill", "star.fill");
        row("own type, unknown symbol", "Boa", "nothing.fill", unknown);
        row("own type, unknown picture", "Boa", "dive.scooter", "dive.scooter");
        row("own type, picture in capitals", "Boa", "Dive.tank", unknown);
        row("own type, old icon", "Boa", "flashlight.on.fill", "dive.light");
        row("own type, one step to a known symbol", "Boa", "safari.fill", "compass.drawing");
        row("own type, one step to an unknown symbol", "Boa", "fishing.rod", unknown);
        row("own type, two steps are not taken", "Boa", "lasso", "dive.reel");
        row("own type, no icon", "Boa", "", unknown);
        row("own type, the mark itself", "Boa", unknown, unknown);
    }

    void oneType()
    {
        QFETCH(QString, name);
        QFETCH(QString, icon);
        const test::FakeSymbolLibrary symbols{u"star.fill"_s, u"compass.drawing"_s,
                                              u"gauge.with.dots.needle.bottom.50percent"_s, u"lungs.fill"_s,
                                              unknownIcon};
        EquipmentTypeModel before = type(name, icon);
        before.isActive = false;
        const auto types = load({before}, symbols);
        QTEST(types.at(0).icon, "migrated");
        before.icon = types.at(0).icon;
        QCOMPARE(types, QList{before}); // nothing but icons
        QCOMPARE(storedTypes().value(), types);
    }

    void versions_data()
    {
        QTest::addColumn<QByteArray>("stored");
        QTest::addColumn<bool>("migrates");
        QTest::newRow("absent") << QByteArray() << true;
        QTest::newRow("0") << QByteArray("0") << true;
        QTest::newRow("3") << QByteArray("3") << true;
        QTest::newRow("negative") << QByteArray("-1") << true;
        QTest::newRow("text") << QByteArray("\"4\"") << true;
        QTest::newRow("unreadable") << QByteArray("four") << true;
        QTest::newRow("4") << QByteArray("4") << false;
        QTest::newRow("a later version's") << QByteArray("5") << false;
    }

    void versions()
    {
        QFETCH(QByteArray, stored);
        QFETCH(bool, migrates);
        if (!stored.isEmpty())
            m_files->write(versionFile, stored);
        const EquipmentTypeModel old = type(u"GAV"_s, u"person.wave.2.circle.fill"_s);
        const auto types = load({old}, test::FakeSymbolLibrary());
        QCOMPARE(types.at(0).icon, migrates ? u"dive.bcd"_s : old.icon);
        QCOMPARE(m_files->content(versionFile), migrates ? QByteArray("4") : stored);
    }

    void nothingToDoSavesNothing()
    {
        // Written by hand: a save would write it otherwise.
        const QByteArray spaced = encode(QList{type(u"Boa"_s, u"dive.tank"_s)}).value().replace("{", "{ ");
        m_files->write(test::typesFile, spaced);
        const test::FakeSymbolLibrary symbols;
        const EquipmentTypeViewModel types(m_files->preferences, symbols, m_files->console, m_files->ids);
        QCOMPARE(m_files->content(test::typesFile), spaced);
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
    }

    void anEmptyCatalogueIsMigratedToo()
    {
        QCOMPARE(load({}, test::FakeSymbolLibrary()), QList<EquipmentTypeModel>());
        QCOMPARE(m_files->content(test::typesFile), QByteArray("[]"));
        QCOMPARE(m_files->content(versionFile), QByteArray("4"));
    }

    void defaultsAreNeverMigrated()
    {
        const test::FakeSymbolLibrary nothing;
        const EquipmentTypeViewModel types(m_files->preferences, nothing, m_files->console, m_files->ids);
        QCOMPARE(types.types().at(10).icon, u"gauge.with.dots.needle.bottom.0percent"_s);
        QCOMPARE(types.types().at(13).icon, u"cross.case.fill"_s);
    }

private:
    static EquipmentTypeModel type(const QString& name, const QString& icon)
    {
        EquipmentTypeModel type = test::equipmentType(1, name);
        type.icon = icon;
        return type;
    }

    QList<EquipmentTypeModel> load(const QList<EquipmentTypeModel>& types, const SymbolLibrary& symbols)
    {
        m_files->write(test::typesFile, encode(types).value());
        return EquipmentTypeViewModel(m_files->preferences, symbols, m_files->console, m_files->ids).types();
    }

    tl::expected<QList<EquipmentTypeModel>, JsonError> storedTypes() const
    {
        return decodeTypes(m_files->content(test::typesFile));
    }

    std::optional<test::TemporaryRegister> m_files;
};

ABISSORA_TEST(tst_IconMigration);
#include "tst_IconMigration.moc"

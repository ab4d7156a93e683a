// SPDX-License-Identifier: MIT
#include "IconFilter.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QStringList found(const QString& searchIconText)
{
    QStringList names;
    for (const auto& [title, icons] : filteredIcons(searchIconText)) {
        for (const DivingIcons icon : icons)
            names.append(title + QLatin1Char('/') + displayName(icon));
    }
    return names;
}

} // namespace

class tst_IconFilter : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptySearchShowsEverySection() { QCOMPARE(filteredIcons({}), categorizedDivingIcons()); }

    void searches_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("icons");
        QTest::newRow("displayed name") << QStringLiteral("bombola")
                                        << QStringList(QStringLiteral("Attrezzatura Principale/Bombola"));
        QTest::newRow("identifier") << QStringLiteral("dive.k") << QStringList(QStringLiteral("Accessori/Coltello"));
        QTest::newRow("letter case") << QStringLiteral("DIVE.K") << QStringList(QStringLiteral("Accessori/Coltello"));
        QTest::newRow("within") << QStringLiteral("sub")
                                << QStringList({QStringLiteral("Attrezzatura Principale/Computer Sub"),
                                                QStringLiteral("Comunicazione/Campana Sub"),
                                                QStringLiteral("Sicurezza/Bandiera Sub"),
                                                QStringLiteral("Tipi di Immersione/Subacquea"),
                                                QStringLiteral("Varie/Fotocamera Sub"),
                                                QStringLiteral("Varie/Borsa Sub")});
        QTest::newRow("spaces count") << QStringLiteral(" bombola") << QStringList();
        QTest::newRow("not a pattern") << QStringLiteral(".*") << QStringList();
        QTest::newRow("not the section's title") << QStringLiteral("Varie") << QStringList();
        QTest::newRow("nothing") << QStringLiteral("xyz") << QStringList();
    }
    void searches()
    {
        QFETCH(QString, text);
        QTEST(found(text), "icons");
    }

    void emptiedSectionsGo()
    {
        const auto sections = filteredIcons(QStringLiteral("muta"));
        QCOMPARE(sections.size(), 1);
        QCOMPARE(sections.first().icons, QList<DivingIcons>({DivingIcons::wetsuit, DivingIcons::drysuit}));
        QVERIFY(filteredIcons(QStringLiteral("xyz")).isEmpty());
    }
};

ABISSORA_TEST(tst_IconFilter);

#include "tst_IconFilter.moc"

// SPDX-License-Identifier: MIT
#include "IconFilter.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

QStringList found(const QString& searchIconText)
{
    QStringList names;
    for (const auto& [title, icons] : filteredIcons(searchIconText)) {
        for (const DivingIcons icon : icons)
            names.append(title + u'/' + displayName(icon));
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
        QTest::newRow("displayed name") << u"bombola"_s << QStringList(u"Attrezzatura Principale/Bombola"_s);
        QTest::newRow("identifier") << u"dive.k"_s << QStringList(u"Accessori/Coltello"_s);
        QTest::newRow("letter case") << u"DIVE.K"_s << QStringList(u"Accessori/Coltello"_s);
        QTest::newRow("within") << u"sub"_s
                                << QStringList({u"Attrezzatura Principale/Computer Sub"_s,
                                                u"Comunicazione/Campana Sub"_s, u"Sicurezza/Bandiera Sub"_s,
                                                u"Tipi di Immersione/Subacquea"_s, u"Varie/Fotocamera Sub"_s,
                                                u"Varie/Borsa Sub"_s});
        QTest::newRow("spaces count") << u" bombola"_s << QStringList();
        QTest::newRow("not a pattern") << u".*"_s << QStringList();
        QTest::newRow("not the section's title") << u"Varie"_s << QStringList();
        QTest::newRow("nothing") << u"xyz"_s << QStringList();
    }
    void searches()
    {
        QFETCH(QString, text);
        QTEST(found(text), "icons");
    }

    void emptiedSectionsGo()
    {
        const auto sections = filteredIcons(u"muta"_s);
        QCOMPARE(sections.size(), 1);
        QCOMPARE(sections.first().icons, QList<DivingIcons>({DivingIcons::wetsuit, DivingIcons::drysuit}));
        QVERIFY(filteredIcons(u"xyz"_s).isEmpty());
    }
};

ABISSORA_TEST(tst_IconFilter);

#include "tst_IconFilter.moc"

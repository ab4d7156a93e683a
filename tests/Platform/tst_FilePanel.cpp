// SPDX-License-Identifier: MIT
#include "FilePanel.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QTest>

using namespace abissora;

namespace {

class PanelWithoutGrants final : public FilePanel
{
public:
    std::optional<QString> pickFile(const FilePanelRequest& /*request*/) override { return std::nullopt; }
    std::optional<SaveTarget> pickTarget(const SavePanelRequest& /*request*/) override { return std::nullopt; }
};

} // namespace

class tst_FilePanel : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void grantsNoAccessByDefault()
    {
        PanelWithoutGrants panel;
        QVERIFY(!panel.beginAccess(u"/a.pdf"_s));
    }

    void aNameTellsItsFormat_data()
    {
        QTest::addColumn<QString>("chosen");
        QTest::addColumn<int>("selected");
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("format");
        QTest::newRow("without a suffix") << u"/r"_s << 2 << u"/r.ics"_s << 2;
        QTest::newRow("its own") << u"/r.csv"_s << 0 << u"/r.csv"_s << 0;
        QTest::newRow("one of two of a suffix") << u"/r.csv"_s << 1 << u"/r.csv"_s << 1;
        QTest::newRow("another one's") << u"/r.ICS"_s << 1 << u"/r.ICS"_s << 2;
        QTest::newRow("another one's, of which there are two") << u"/r.csv"_s << 2 << u"/r.csv"_s << 0;
        QTest::newRow("nobody's") << u"/r.2026"_s << 0 << u"/r.2026.csv"_s << 0;
        QTest::newRow("only the end of a name") << u"/rcsv"_s << 0 << u"/rcsv.csv"_s << 0;
    }
    void aNameTellsItsFormat()
    {
        QFETCH(QString, chosen);
        QFETCH(int, selected);
        const QList<SaveFormat> formats{
            {u"Articoli"_s, u"csv"_s}, {u"Manutenzioni"_s, u"csv"_s}, {u"Date"_s, u"ics"_s}};
        const SaveTarget target = saveTarget(chosen, formats, selected);
        QTEST(target.path, "path");
        QTEST(static_cast<int>(target.format), "format");
    }
};

ABISSORA_TEST(tst_FilePanel);
#include "tst_FilePanel.moc"

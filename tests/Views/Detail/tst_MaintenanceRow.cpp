// SPDX-License-Identifier: MIT
#include "MaintenanceRow.h"

#include "Fakes.h"
#include "Gui.h"
#include "Labels.h"
#include "Literals.h"
#include "TestRunner.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QLayout>
#include <QSignalSpy>
#include <QToolTip>
#include <random>

using namespace abissora;
using namespace abissora::test;

namespace {

MaintenanceRowContent content()
{
    return {
        .id = SequentialIds::at(7),
        .typeName = u"Riparazione"_s,
        .appearance = {u"wrench.fill"_s, NamedColor::red},
        .cost = u"€12.50"_s,
        .description = u"Primo stadio"_s,
        .dateAndPerformer = u"14 giu 2026 · Eseguito da: Blu Service"_s,
        .isCompleted = true,
        .hasReceipt = true,
        .hasCertificate = false,
        .whichRecord = u"14 giu 2026, Primo stadio"_s,
    };
}

struct ShownRow
{
    ShownRow()
    {
        row.setRow(content());
        row.resize(385, 300);
        row.show();
        settle();
    }

    MaintenanceRow row;
};

} // namespace

class tst_MaintenanceRow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void texts()
    {
        ShownRow s;
        QCOMPARE(visibleLabels(s.row),
                 QStringList({u"Riparazione"_s, u"€12.50"_s, u"Primo stadio"_s,
                              u"14 giu 2026 · Eseguito da: Blu Service"_s, u"Manutenzione avvenuta"_s}));
    }

    void withoutCostAndNotDone()
    {
        ShownRow s;
        MaintenanceRowContent other = content();
        other.cost.clear();
        other.isCompleted = false;
        s.row.setRow(other);
        QVERIFY(!isShown(s.row, "maintenanceCost"));
        QVERIFY(!isShown(s.row, "completed"));
        QCOMPARE(textOf(s.row, "notCompleted"), u"Manutenzione non avvenuta"_s);
    }

    void itsButtonsSayWhichRecordTheyMean()
    {
        ShownRow s;
        for (const char* name : {"editMaintenance", "deleteMaintenance", "maintenanceMenu"})
            QCOMPARE(part(s.row, name).accessibleDescription(), u"14 giu 2026, Primo stadio"_s);
        const auto documentsSay = [&](const QString& which) {
            for (const auto* name : {"openReceipt", "uploadReceipt", "openCertificate", "uploadCertificate"})
                QCOMPARE(existing(s.row, QLatin1StringView(name)).accessibleDescription(), which);
            QCOMPARE(existing(s.row, "replaceReceipt").accessibleDescription(), u"Scontrino, "_s + which);
            QCOMPARE(existing(s.row, "replaceCertificate").accessibleDescription(), u"Certificato, "_s + which);
            QCOMPARE(s.row.accessibleName(), which);
        };
        documentsSay(u"14 giu 2026, Primo stadio"_s);
        MaintenanceRowContent other = content();
        other.whichRecord = u"9 giu 2026, Lavaggio"_s;
        s.row.setRow(other);
        QCOMPARE(part(s.row, "deleteMaintenance").accessibleDescription(), u"9 giu 2026, Lavaggio"_s);
        documentsSay(u"9 giu 2026, Lavaggio"_s);
    }

    void documentsAreOfferedAsTheyAreThere()
    {
        ShownRow s;
        QVERIFY(isShown(s.row, "openReceipt") && isShown(s.row, "replaceReceipt"));
        QVERIFY(!isShown(s.row, "uploadReceipt"));
        QVERIFY(!isShown(s.row, "openCertificate") && !isShown(s.row, "replaceCertificate"));
        QVERIFY(isShown(s.row, "uploadCertificate"));
    }

    void asksForWhatIsClicked()
    {
        ShownRow s;
        QSignalSpy edit(&s.row, &MaintenanceRow::editRequested);
        QSignalSpy remove(&s.row, &MaintenanceRow::deleteRequested);
        click(s.row, "editMaintenance");
        click(s.row, "deleteMaintenance");
        for (const QSignalSpy* asked : {&edit, &remove}) {
            QCOMPARE(asked->size(), 1);
            QCOMPARE(asked->first().first().toUuid(), content().id);
        }
    }

    void asksForADocument_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("expected");
        QTest::newRow("open") << u"openReceipt"_s << u"open Scontrino"_s;
        QTest::newRow("replace") << u"replaceReceipt"_s << u"replace Scontrino"_s;
        QTest::newRow("upload") << u"uploadCertificate"_s << u"upload Certificato"_s;
    }

    void asksForADocument()
    {
        QFETCH(QString, button);
        QFETCH(QString, expected);
        ShownRow s;
        QStringList asked;
        const auto listen = [&](auto signal, const QString& verb) {
            connect(&s.row, signal, this, [&asked, verb](QUuid id, DocumentSlot slot) {
                if (id == content().id)
                    asked.append(verb + documentLabel(slot));
            });
        };
        listen(&MaintenanceRow::openRequested, u"open "_s);
        listen(&MaintenanceRow::replaceRequested, u"replace "_s);
        listen(&MaintenanceRow::uploadRequested, u"upload "_s);
        click(s.row, button);
        QCOMPARE(asked, QStringList(expected));
    }

    /// The whole of it is read in the tool tip and by screen readers.
    void anEndlessCostGivesWay()
    {
        ShownRow s;
        MaintenanceRowContent row = content();
        row.cost = u"€"_s + u"9"_s.repeated(60) + u".00"_s;
        s.row.setRow(row);
        s.row.resize(385, 300);
        settle();
        QVERIFY(s.row.minimumSizeHint().width() <= 385);
        auto& cost = part<ElidedLabel>(s.row, "maintenanceCost");
        QVERIFY(s.row.rect().contains(QRect(cost.mapTo(&s.row, QPoint()), cost.size())));
        QVERIFY(part(s.row, "maintenanceType").width() > 80);
        QHelpEvent asked(QEvent::ToolTip, cost.rect().center(), cost.mapToGlobal(cost.rect().center()));
        QApplication::sendEvent(&cost, &asked);
        QVERIFY(QToolTip::text().contains(row.cost));
        QToolTip::hideText();
        QCOMPARE(QAccessible::queryAccessibleInterface(&cost)->text(QAccessible::Name), row.cost);
    }

    void rowsOfOneShapeAreEquallyHigh()
    {
        static const QStringList types{u"Test"_s, u"Manutenzione Annuale"_s};
        static const QStringList costs{u""_s, u"€1.00"_s, u"€1234567890123456789.00"_s};
        static const QStringList texts{u"Primo stadio"_s, u"Sostituiti O-ring, molle e membrana del secondo stadio"_s,
                                       u"a/b "_s.repeated(30), u""_s, u"Prova idraulica a 300 bar, superata"_s};
        const MaintenanceRow ruler;
        MaintenanceRow row;
        QHash<std::pair<int, QString>, int> heights;
        std::mt19937 random(4);
        const auto any = [&random](const QStringList& of) {
            return of.at(std::uniform_int_distribution<qsizetype>(0, of.size() - 1)(random));
        };
        int repeated = 0;
        for (int i = 0; i < 1500; ++i) {
            MaintenanceRowContent shown = content();
            shown.typeName = any(types);
            shown.cost = any(costs);
            shown.description = any(texts);
            shown.dateAndPerformer = any(texts);
            shown.isCompleted = i % 2 == 0;
            shown.hasReceipt = i % 3 == 0;
            shown.hasCertificate = i % 5 == 0;
            const int width = 220 + 40 * (i % 7);
            row.setRow(shown);
            row.layout()->activate();
            const int height = row.heightForWidth(width);
            const std::pair key(width, ruler.shapeOf(shown, width));
            repeated += heights.contains(key) ? 1 : 0;
            QCOMPARE(heights.value(key, height), height);
            heights.insert(key, height);
        }
        QVERIFY(repeated > 500);
    }
};

ABISSORA_TEST(tst_MaintenanceRow);

#include "tst_MaintenanceRow.moc"

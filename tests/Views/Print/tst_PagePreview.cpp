// SPDX-License-Identifier: MIT
#include "Announcements.h"
#include "Gui.h"
#include "Literals.h"
#include "PagePreview.h"
#include "PaperLook.h"
#include "PaperSize.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QAccessible>

using namespace abissora;
using namespace abissora::test;

namespace {

PageLayout layoutOf(qsizetype rows)
{
    PrintedPaper paper{.kind = u"Elenco"_s,
                       .title = u"Titolo"_s,
                       .subtitle = u"Sotto"_s,
                       .columns = {{.title = u"Nome"_s}},
                       .rows = QList<PrintedRow>(rows, PrintedRow{{{u"Pinne"_s}}}),
                       .withoutRows = u"Niente"_s,
                       .closing = {u"Totale"_s},
                       .foot = u"Titolo"_s,
                       .printedOn = u"Stampato"_s};
    return PageLayout(paper, pageSize(PaperSize::A4).size(QPageSize::Point));
}

struct ShownPages
{
    explicit ShownPages(qsizetype rows = 100)
    {
        preview.setLayoutOfPages(layoutOf(rows));
        preview.resize(500, 700);
        activate(preview);
    }

    [[nodiscard]] PageCanvas& canvas() const { return part<PageCanvas>(preview, u"page"); }
    [[nodiscard]] QString number() const { return textOf(preview, u"pageNumber"); }

    PagePreview preview;
};

} // namespace

class tst_PagePreview : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void keysTurnThePages()
    {
        ShownPages s;
        const qsizetype last = layoutOf(100).pages().size() - 1;
        QVERIFY(last >= 2);
        s.canvas().setFocus(Qt::TabFocusReason);
        QCOMPARE(s.number(), u"Pagina 1 di %1"_s.arg(last + 1));
        const auto press = [&s](Qt::Key key) {
            QTest::keyClick(&s.canvas(), key);
            return s.preview.page();
        };
        QCOMPARE(press(Qt::Key_PageUp), 0);
        QCOMPARE(press(Qt::Key_PageDown), 1);
        QCOMPARE(press(Qt::Key_Right), 2);
        QCOMPARE(press(Qt::Key_Left), 1);
        QCOMPARE(press(Qt::Key_End), last);
        QCOMPARE(press(Qt::Key_PageDown), last);
        QCOMPARE(press(Qt::Key_Home), 0);
    }

    void buttonsTurnThePages()
    {
        ShownPages s(40);
        QVERIFY(!part(s.preview, u"pageBack").isEnabled());
        click(s.preview, u"pageOn");
        QCOMPARE(s.number(), u"Pagina 2 di 2"_s);
        QVERIFY(!part(s.preview, u"pageOn").isEnabled());
        click(s.preview, u"pageBack");
        QCOMPARE(s.preview.page(), 0);
    }

    void theLastPageKeepsTheKeyboard()
    {
        ShownPages s(40);
        auto& on = part<QAbstractButton>(s.preview, u"pageOn");
        on.setFocus(Qt::TabFocusReason);
        QTest::keyClick(&on, Qt::Key_Space);
        QVERIFY(s.canvas().hasFocus());
    }

    void whatIsRead()
    {
        ShownPages s(40);
        QAccessibleInterface& reader = *QAccessible::queryAccessibleInterface(&s.canvas());
        QCOMPARE(reader.role(), QAccessible::Graphic);
        QCOMPARE(reader.text(QAccessible::Name), u"Anteprima: Titolo, Pagina 1 di 2"_s);
        click(s.preview, u"pageOn");
        QCOMPARE(reader.text(QAccessible::Name), u"Anteprima: Titolo, Pagina 2 di 2"_s);
        QCOMPARE(part(s.preview, u"pageOn").accessibleName(), u"Pagina successiva"_s);
    }

    void thePaperIsWhiteInBothSchemes()
    {
        for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
            applyTheme(*qApp, scheme);
            ShownPages s;
            const QImage picture = s.canvas().grab().toImage();
            const QRect page = s.canvas().pageRect();
            QCOMPARE(picture.pixelColor(page.topLeft() + QPoint(5, 5)), QColor(Qt::white));
            int dark = 0;
            for (int x = page.left(); x < page.right(); ++x) {
                for (int y = page.top(); y < page.bottom(); ++y)
                    dark += picture.pixelColor(x, y).lightness() < 128 ? 1 : 0;
            }
            QVERIFY(dark > 100);
            QCOMPARE(page.width(), qRound(page.height() / 842.0 * 595));
        }
        applyTheme(*qApp, Scheme::Light);
    }

    void withoutPagesThereIsNothing()
    {
        ShownPages s;
        s.preview.setLayoutOfPages(std::nullopt);
        QCOMPARE(s.number(), QString());
        QVERIFY(!part(s.preview, u"pageOn").isEnabled());
        QTest::keyClick(&s.canvas(), Qt::Key_PageDown);
        QCOMPARE(s.preview.page(), 0);
        const QImage picture = s.canvas().grab().toImage();
        QCOMPARE(picture.pixelColor(picture.rect().center()), picture.pixelColor(1, 1));
    }
};

ABISSORA_TEST(tst_PagePreview);
#include "tst_PagePreview.moc"

// SPDX-License-Identifier: MIT
#include "Literals.h"
#include "OverviewParts.h"
#include "Painting.h"
#include "Picture.h"
#include "StatisticsView.h"

#include <QProgressBar>
#include <QScrollArea>

using namespace abissora;
using namespace abissora::test;

namespace {

/// The overview over three items that are due, one with a name that no row has room for.
struct DueItems
{
    DueItems()
        : f(items())
        , shown(f)
        , list(part(shown.window, u"dueList"_s))
    {}

    static QList<Equipment> items()
    {
        QList<Equipment> items = dueItems(3);
        items[0].name = QString(400, u'l');
        return items;
    }

    /// The parts of that name, from top to bottom, by their places on the list.
    [[nodiscard]] QList<QRect> places(const char* name) const
    {
        QList<QRect> places;
        for (const QWidget* found : list.findChildren<QWidget*>(QLatin1String(name))) {
            if (found->isVisible())
                places.append({found->mapTo(&list, QPoint()), found->size()});
        }
        std::sort(places.begin(), places.end(), [](const QRect& a, const QRect& b) { return a.top() < b.top(); });
        return places;
    }

    RegisterFixture f;
    ShownOverview shown;
    QWidget& list;
};

} // namespace

class tst_OverviewPictures : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void dueRowsShowTileNameAndState()
    {
        const DueItems due;
        const Picture list = drawn(due.list);
        QCOMPARE(due.places("dueName").size(), 3);
        for (const QRect& name : due.places("dueName"))
            QCOMPARE(list.inked(name, tokens().surface, tokens().text), fine);
        for (const QRect& state : due.places("dueState"))
            QCOMPARE(list.inked(state, tokens().surface, tokens().danger), fine);
        const QColor color = tokens().named(NamedColor::purple); // of masks
        for (const QRect& tile : due.places("dueIcon")) {
            const QColor ground = mix(tokens().surface, color, 0.15);
            QVERIFY(list.amount(tile, ground) > 400);
            QCOMPARE(list.inked(tile.adjusted(10, 10, -10, -10), ground, color), fine);
            QCOMPARE(list.at(tile.topLeft()), tokens().surface); // round
        }
        for (const QRect& button : due.places("addMaintenance"))
            QVERIFY(list.amount(button, tokens().accentFill) > 400);
    }

    void aNameWithoutRoomEndsInDots()
    {
        const DueItems due;
        const Picture list = drawn(due.list);
        QList<bool> elided;
        for (const QRect& name : due.places("dueName"))
            elided.append(list.endsInDots(name, tokens().surface));
        QCOMPARE(elided.count(true), 1);
    }

    void dueRowsStandOnACard()
    {
        const DueItems due;
        const Picture list = drawn(due.list);
        QCOMPARE(list.framed(list.rect(), tokens().border, 1), fine);
        QCOMPARE(list.filled(list.rect(), tokens().surface), fine);
        for (const QPoint& corner : {list.rect().topLeft(), list.rect().topRight(), list.rect().bottomLeft()})
            QCOMPARE(list.at(corner), tokens().window);
    }

    void linesPartTheRows()
    {
        const DueItems due;
        const Picture list = drawn(due.list);
        const QList<QRect> tiles = due.places("dueIcon");
        for (qsizetype row = 1; row < tiles.size(); ++row) {
            const int above = tiles.at(row - 1).bottom() + 2;
            const Ink line = list.ink(QRect(20, above, 1, tiles.at(row).top() - 1 - above), tokens().surface);
            QCOMPARE(line.core, tokens().divider);
            QCOMPARE(line.area, 1);
            QCOMPARE(list.filled(QRectF(1, line.bounds.top(), list.rect().width() - 2, 1), tokens().divider, 1), fine);
        }
        QCOMPARE(list.bare(QRect(20, 2, 1, tiles.first().top() - 4), tokens().surface), fine);
    }

    void whatIsExposedOfALongListIsDrawn()
    {
        RegisterFixture f(dueItems(300));
        ShownOverview shown(f);
        const QWidget& list = part(shown.window, u"dueList"_s);
        QScrollArea* area = nullptr;
        for (QWidget* above = list.parentWidget(); area == nullptr; above = above->parentWidget())
            area = qobject_cast<QScrollArea*>(above);
        area->ensureVisible(0, list.height() / 2, 0, 200);
        settle();
        const Picture window = drawn(*area->viewport());
        const int left = list.mapTo(area->viewport(), QPoint()).x();
        const int height = window.rect().height();
        QCOMPARE(window.filled(QRect(left, 0, 1, height), tokens().border, 1), fine);
        QCOMPARE(window.amount(QRect(left + 4, 0, 1, height), tokens().surface) +
                     window.amount(QRect(left + 4, 0, 1, height), tokens().divider),
                 height);
        QVERIFY(window.amount(QRect(left + 4, 0, 1, height), tokens().divider) > 3);
    }

    void barsOfTheStatisticsAreAsLongAsTheirShare()
    {
        RegisterFixture f(dueItems(3));
        ShownScreen shown(new StatisticsView(f.equipment, f.types), {1050, 760});
        const auto bars = shown.window.findChildren<QProgressBar*>();
        QVERIFY(!bars.isEmpty());
        for (QProgressBar* bar : bars) {
            const Picture picture = drawn(*bar);
            const QRect middle(3, bar->height() / 2 - 1, bar->width() - 6, 2);
            const qreal share = qreal(bar->value() - bar->minimum()) / (bar->maximum() - bar->minimum());
            const qreal rest = picture.amount(middle, tokens().divider) / (middle.width() * middle.height());
            QVERIFY(std::abs(rest - (1 - share)) < 0.05);
        }
    }
};

ABISSORA_TEST(tst_OverviewPictures);
#include "tst_OverviewPictures.moc"

// SPDX-License-Identifier: MIT
#include "EquipmentDetailView.h"
#include "Gui.h"
#include "Picture.h"
#include "RegisterFixture.h"

using namespace abissora;
using namespace abissora::test;

namespace {

/// One item on show.
struct PaintedDetail
{
    PaintedDetail(int days, bool active)
    {
        Equipment item = makeItem(1, u"Erogatore"_s, EquipmentType::regulator, f.inDays(days));
        item.isActive = active;
        f.equipment.addEquipment(item);
        view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
        view->resize(385, 900);
        view->show();
        settle();
    }

    /// Where the visible label with that text stands; null when there is none.
    [[nodiscard]] QRect label(const QString& text) const
    {
        for (const QLabel* label : view->findChildren<QLabel*>()) {
            if (label->text() == text && label->isVisible())
                return {label->mapTo(view.get(), QPoint()), label->size()};
        }
        return {};
    }

    RegisterFixture f;
    std::unique_ptr<EquipmentDetailView> view;
};

} // namespace

class tst_DetailPictures : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void aDotTellsTheState_data()
    {
        QTest::addColumn<bool>("active");
        QTest::newRow("active") << true;
        QTest::newRow("inactive") << false;
    }

    void aDotTellsTheState()
    {
        QFETCH(const bool, active);
        const PaintedDetail shown(100, active);
        const Picture picture = drawn(*shown.view);
        const QRect mark = shown.label(active ? u"Attivo"_s : u"Inattivo"_s);
        QVERIFY(!mark.isEmpty());
        const QColor ground = picture.at(mark.topLeft());
        const QRect dot(mark.left(), mark.top(), 9, mark.height());
        QCOMPARE(picture.inked(dot, ground, tokens().named(active ? NamedColor::green : NamedColor::gray)), fine);
        QVERIFY(std::abs(picture.ink(dot, ground).area - 50) < 16);
        QCOMPARE(picture.inked(mark.adjusted(13, 0, 0, 0), ground, tokens().secondaryText), fine);
    }

    void whatIsDueIsMarked()
    {
        const PaintedDetail shown(-3, true);
        const Picture picture = drawn(*shown.view);
        const QRect text = shown.label(u"SCADUTO"_s);
        QVERIFY(!text.isEmpty());
        QCOMPARE(picture.inked(text, tokens().dangerTint, tokens().danger), fine);
        QCOMPARE(picture.inked(text.translated(0, -24), tokens().dangerTint, tokens().named(NamedColor::red)), fine);
        QCOMPARE(picture.filled(text.adjusted(-6, 0, 6, 6), tokens().dangerTint), fine);
        QVERIFY(drawn(*PaintedDetail(100, true).view).amount(shown.view->rect(), tokens().dangerTint) <
                10); // rims of icons may hit it
    }
};

ABISSORA_TEST(tst_DetailPictures);
#include "tst_DetailPictures.moc"

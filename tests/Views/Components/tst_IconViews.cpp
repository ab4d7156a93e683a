// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "IconViews.h"
#include "Literals.h"
#include "SymbolIcon.h"

using namespace abissora;

class tst_IconViews : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void anIconLabelLeavesRoomForItsIcon();
    void picturesAreReadAsPictures();
    void aTileIsRound();
};

void tst_IconViews::anIconLabelLeavesRoomForItsIcon()
{
    IconLabel label({}, u"Attivo"_s);
    const int plain = label.sizeHint().width();
    label.setIcon(symbolIcon(u"checkmark.circle"_s));
    QVERIFY(label.sizeHint().width() >= plain + 16);
    QVERIFY(label.sizeHint().height() >= 16);
    QCOMPARE(roleOf(label), QAccessible::StaticText);
    QCOMPARE(nameOf(label), u"Attivo"_s);
}

void tst_IconViews::picturesAreReadAsPictures()
{
    IconView view(symbolIcon(u"tray"_s), 44);
    QCOMPARE(view.sizeHint(), QSize(44, 44));
    QCOMPARE(roleOf(view), QAccessible::Graphic);
    IconTile tile(56);
    QCOMPARE(tile.sizeHint(), QSize(56, 56));
    QCOMPARE(roleOf(tile), QAccessible::Graphic);
}

void tst_IconViews::aTileIsRound()
{
    IconTile tile(40);
    tile.setIcon(symbolIcon(u"tray"_s), NamedColor::blue);
    tile.resize(tile.sizeHint());
    const QImage image = tile.grab().toImage();
    const QColor ground = Tokens::of(Scheme::Light).window;
    QCOMPARE(image.pixelColor(2, 2), ground);
    QVERIFY(image.pixelColor(20, 3) != ground);
}

ABISSORA_TEST(tst_IconViews);
#include "tst_IconViews.moc"

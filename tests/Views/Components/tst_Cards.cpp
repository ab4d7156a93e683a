// SPDX-License-Identifier: MIT
#include "Card.h"
#include "ComponentTest.h"
#include "GroupBox.h"
#include "IconLabel.h"
#include "IconTile.h"
#include "IconView.h"
#include "Separator.h"
#include "SymbolIcon.h"

#include <QLabel>
#include <QVBoxLayout>

using namespace abissora;

class tst_Cards : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void aCardPaintsItsSurface();
    void aCardFollowsTheScheme();
    void aGroupBoxIsNamedAfterItsTitle();
    void anIconLabelLeavesRoomForItsIcon();
    void picturesAreReadAsPictures();
};

void tst_Cards::aCardPaintsItsSurface()
{
    Card card;
    card.resize(80, 60);
    const QImage image = card.grab().toImage();
    QCOMPARE(image.pixelColor(40, 30), Tokens::of(Scheme::Light).surface);
    QCOMPARE(image.pixelColor(40, 0), Tokens::of(Scheme::Light).border);
    QCOMPARE(image.pixelColor(0, 0), Tokens::of(Scheme::Light).window);
}

void tst_Cards::aCardFollowsTheScheme()
{
    Card card;
    card.resize(80, 60);
    card.ensurePolished();
    applyTheme(*qApp, Scheme::Dark);
    QCoreApplication::processEvents();
    const QColor middle = card.grab().toImage().pixelColor(40, 30);
    applyTheme(*qApp, Scheme::Light);
    QCOMPARE(middle, Tokens::of(Scheme::Dark).surface);
}

void tst_Cards::aGroupBoxIsNamedAfterItsTitle()
{
    GroupBox box(QStringLiteral("Notifiche"), QStringLiteral("bell"));
    QCOMPARE(roleOf(box), QAccessible::Grouping);
    QCOMPARE(nameOf(box), QStringLiteral("Notifiche"));
    box.setTitle(QStringLiteral("Aspetto"));
    QCOMPARE(nameOf(box), QStringLiteral("Aspetto"));
    QCOMPARE(box.title(), QStringLiteral("Aspetto"));
}

void tst_Cards::anIconLabelLeavesRoomForItsIcon()
{
    IconLabel label({}, QStringLiteral("Attivo"));
    const int plain = label.sizeHint().width();
    label.setIcon(symbolIcon(QStringLiteral("checkmark.circle")));
    QVERIFY(label.sizeHint().width() >= plain + 16);
    QVERIFY(label.sizeHint().height() >= 16);
    QCOMPARE(roleOf(label), QAccessible::StaticText);
    QCOMPARE(nameOf(label), QStringLiteral("Attivo"));
}

void tst_Cards::picturesAreReadAsPictures()
{
    IconView view(symbolIcon(QStringLiteral("tray")), 44);
    QCOMPARE(view.sizeHint(), QSize(44, 44));
    QCOMPARE(roleOf(view), QAccessible::Graphic);
    IconTile tile(56);
    QCOMPARE(tile.sizeHint(), QSize(56, 56));
    QCOMPARE(roleOf(tile), QAccessible::Graphic);
    Separator separator;
    QCOMPARE(roleOf(separator), QAccessible::Separator);
}

ABISSORA_TEST(tst_Cards);
#include "tst_Cards.moc"

// SPDX-License-Identifier: MIT
#include "Painting.h"
#include "Picture.h"
#include "RegisterFixture.h"
#include "SidebarView.h"
#include "TypeScale.h"

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr QStyle::State keyboardFocus = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
constexpr int width = 220;
/// Where a row's picture ends and its text begins.
constexpr int lead = 34;

/// A sidebar with one item that is due and a type with a long name.
struct Sidebar
{
    Sidebar()
        : f(QList<Equipment>{makeItem(1, u"Bombola"_s, EquipmentType::cylinder, FixedClock().now())})
        , view(f.equipment, named(f.types), f.console)
    {}

    static EquipmentTypeViewModel& named(EquipmentTypeViewModel& types)
    {
        QList<EquipmentTypeModel> all = types.getDefaultTypes();
        all[0].name = QString(60, u'l');
        types.setTypes(all);
        return types;
    }

    [[nodiscard]] QModelIndex row(const QString& text) const
    {
        return view.model()->match(view.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly).value(0);
    }

    RegisterFixture f;
    SidebarView view;
};

} // namespace

class tst_SidebarDelegate : public PictureTest
{
    Q_OBJECT

private:
    static Picture row(const Sidebar& sidebar, const QString& text, QStyle::State state = {})
    {
        const QModelIndex index = sidebar.row(text);
        const int height = sidebar.view.itemDelegate()->sizeHint({}, index).height();
        return drawnItem(sidebar.view, index, {width, height}, tokens().sidebar, state);
    }

private Q_SLOTS:
    void anEntryShowsPictureAndText_data()
    {
        QTest::addColumn<int>("state");
        QTest::newRow("usual") << 0;
        QTest::newRow("selected") << int{QStyle::State_Selected};
        QTest::newRow("hovered") << int{QStyle::State_MouseOver};
        QTest::newRow("selected, hovered") << int{QStyle::State_Selected | QStyle::State_MouseOver};
    }

    void anEntryShowsPictureAndText()
    {
        QFETCH(const int, state);
        const Sidebar sidebar;
        const bool selected = state & QStyle::State_Selected;
        const bool hovered = state & QStyle::State_MouseOver;
        const QColor ground = selected  ? tokens().accentFill
                              : hovered ? mix(tokens().sidebar, tokens().text, 0.06)
                                        : tokens().sidebar;
        const Picture entry = row(sidebar, u"Pinne"_s, QStyle::State(state));
        const QRect inside = entry.rect().adjusted(14, 4, -14, -4);
        QCOMPARE(entry.contained(), fine);
        QCOMPARE(entry.filled(inside, ground, 0.7), fine);
        // The pill is round and stands free.
        QCOMPARE(entry.bare(QRect(0, 0, 5, entry.rect().height()), tokens().sidebar), fine);
        QCOMPARE(entry.bare(QRect(width - 5, 0, 5, entry.rect().height()), tokens().sidebar), fine);
        QCOMPARE(entry.bare(QRect(6, 1, 1, 1), tokens().sidebar), fine);
        const QColor picture = tokens().named(sidebar.f.types.getTypeByName(u"Pinne"_s)->colorValue());
        QCOMPARE(entry.inked(QRect(14, 4, lead - 14, inside.height()), ground, selected ? tokens().onFill : picture),
                 fine);
        QCOMPARE(entry.inked(QRect(lead, 4, width - lead - 14, inside.height()), ground,
                             selected ? tokens().onFill : tokens().text),
                 fine);
    }

    void theFocusIsARing()
    {
        const Sidebar sidebar;
        const Picture entry = row(sidebar, u"Pinne"_s, keyboardFocus);
        QCOMPARE(entry.framed(entry.rect().adjusted(6, 1, -6, -1), tokens().accentInk, 2), fine);
        QCOMPARE(entry.contained(), fine);
        const Picture chosen = row(sidebar, u"Pinne"_s, keyboardFocus | QStyle::State_Selected);
        QCOMPARE(chosen.framed(chosen.rect().adjusted(8, 3, -8, -3), tokens().onFill, 2), fine);
        QCOMPARE(row(sidebar, u"Pinne"_s, QStyle::State_HasFocus).amount(QRect(5, 0, 5, 40), tokens().accentInk), 0);
    }

    void theBadgeIsWhiteOnDanger()
    {
        Sidebar sidebar;
        const QString due = u"Manutenzione scaduta"_s;
        const Picture badged = row(sidebar, due);
        const QRect end(width - 36, 4, 28, badged.rect().height() - 8);
        QVERIFY(badged.amount(end, tokens().dangerFill) > 80);
        const QRect inner(width - 22, badged.rect().center().y() - 4, 9, 9);
        QCOMPARE(badged.inked(inner, tokens().dangerFill, tokens().onFill), fine);
        QCOMPARE(badged.contained(), fine);
        QCOMPARE(row(sidebar, u"Pinne"_s).amount(end, tokens().dangerFill), 0);
        // Selected it stays legible, and it takes its room from the text.
        const Picture selected = row(sidebar, due, QStyle::State_Selected);
        QVERIFY(selected.amount(end, tokens().dangerFill) > 80);
    }

    void aTitleIsInCaptionSize()
    {
        const Sidebar sidebar;
        const Picture title = row(sidebar, u"Categorie"_s);
        QCOMPARE(title.inked(title.rect(), tokens().sidebar, tokens().secondaryText), fine);
        QCOMPARE(title.contained(), fine);
        const qreal wide = title.ink(title.rect(), tokens().sidebar).bounds.width();
        const QFontMetricsF caption(font(TextStyle::CaptionSemibold));
        QVERIFY(std::abs(wide - caption.tightBoundingRect(u"Categorie"_s).width()) < 2);
    }

    void theDividerIsALine()
    {
        const Sidebar sidebar;
        const Picture divider = row(sidebar, {});
        const Ink line = divider.ink(divider.rect(), tokens().sidebar);
        QCOMPARE(line.core, tokens().border);
        QCOMPARE(line.bounds.height(), 1);
        QVERIFY(line.bounds.width() > width - 30 && line.bounds.width() < width);
        QCOMPARE(divider.contained(), fine);
    }

    void aLongNameEndsInDots()
    {
        const Sidebar sidebar;
        const Picture entry = row(sidebar, QString(60, u'l'));
        QVERIFY(entry.endsInDots(entry.rect().adjusted(lead, 0, 0, 0), tokens().sidebar));
        QCOMPARE(entry.bare(QRect(width - 14, 0, 14, entry.rect().height()), tokens().sidebar), fine);
        const Picture shorter = row(sidebar, u"Pinne"_s);
        QVERIFY(!shorter.endsInDots(shorter.rect().adjusted(lead, 0, 0, 0), tokens().sidebar));
    }
};

ABISSORA_TEST(tst_SidebarDelegate);
#include "tst_SidebarDelegate.moc"

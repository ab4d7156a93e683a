// SPDX-License-Identifier: MIT
#include "ControlLook.h"
#include "Literals.h"
#include "Painting.h"
#include "Picture.h"

#include <QApplication>
#include <QHeaderView>
#include <QListWidget>
#include <QPainter>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>
#include <QSplitter>
#include <QTableWidget>

using namespace abissora;
using namespace abissora::test;

class tst_ViewPictures : public PictureTest
{
    Q_OBJECT

private:
    /// A row of a list in that look; its place on the viewport is the whole picture.
    static Picture row(SelectionLook look, QStyle::State state)
    {
        QListWidget list;
        setSelectionLook(list, look);
        list.addItem(u"Erogatore"_s);
        return drawnItem(list, list.model()->index(0, 0), {140, 30}, tokens().surface, state);
    }

private Q_SLOTS:
    void rowsOfLists()
    {
        const QColor lit = mix(tokens().surface, tokens().text, 0.03);
        const QColor veil = mix(tokens().surface, tokens().text, 0.06);
        const struct
        {
            SelectionLook look{};
            QStyle::State state;
            QColor fill;
            QColor ink;
        } cases[]{
            {SelectionLook::Row, {}, tokens().surface, tokens().text},
            {SelectionLook::Row, QStyle::State_Selected, tokens().selection, tokens().text},
            {SelectionLook::Row, QStyle::State_MouseOver, lit, tokens().text},
            {SelectionLook::Pill, {}, tokens().surface, tokens().text},
            {SelectionLook::Pill, QStyle::State_Selected | QStyle::State_Active, tokens().accentFill, tokens().onFill},
            {SelectionLook::Pill, QStyle::State_MouseOver, veil, tokens().text},
        };
        for (const auto& expected : cases) {
            const Picture picture = row(expected.look, expected.state);
            QCOMPARE(picture.contained(), fine);
            QCOMPARE(picture.filled(picture.rect(), expected.fill, 0.7), fine);
            QCOMPARE(picture.inked(QRect(1, 4, 80, 22), expected.fill, expected.ink), fine);
            const bool round = expected.look == SelectionLook::Pill;
            QCOMPARE(picture.at({0, 0}), round ? tokens().surface : picture.at({130, 15}));
        }
    }

    void theFocusOfARow()
    {
        constexpr QStyle::State focused = QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
        const QRect rect(0, 0, 140, 30);
        QCOMPARE(row(SelectionLook::Row, focused).framed(rect, tokens().accentInk, 2), fine);
        QCOMPARE(row(SelectionLook::Pill, focused).framed(rect, tokens().accentInk, 2), fine);
        const Picture pill = row(SelectionLook::Pill, focused | QStyle::State_Selected | QStyle::State_Active);
        QVERIFY(pill.amount(QRect(60, 2, 20, 2), tokens().onFill) > 10); // the accent would not show on itself
        QCOMPARE(pill.contained(), fine);
    }

    void headers()
    {
        QTableWidget table(1, 2);
        table.setHorizontalHeaderLabels({u"Nome"_s, QString(60, u'l')});
        table.horizontalHeader()->resizeSection(0, 120);
        table.horizontalHeader()->resizeSection(1, 100);
        table.resize(300, 100);
        table.show();
        const Picture plain = drawn(*table.horizontalHeader());
        const int line = plain.rect().bottom();
        QCOMPARE(plain.inked(QRect(0, 1, 100, line - 2), tokens().surface, tokens().secondaryText), fine);
        QVERIFY(plain.endsInDots(QRect(121, 1, 99, line - 2), tokens().surface));
        QCOMPARE(plain.filled(QRect(0, line, plain.rect().width(), 1), tokens().border, 1), fine);
        QCOMPARE(plain.bare(QRect(84, 1, 34, line - 2), tokens().surface), fine);
    }

    void progressBars()
    {
        QProgressBar bar;
        bar.setTextVisible(false);
        bar.resize(200, 20);
        const auto judge = [&](const QColor& fill) {
            const Picture picture = drawn(bar);
            return QStringList{
                picture.filled(QRect(6, 8, 70, 4), fill, 1), picture.filled(QRect(84, 8, 110, 4), tokens().divider, 1),
                picture.bare(QRect(0, 0, 200, 5), tokens().window), picture.bare(QRect(0, 15, 200, 5), tokens().window),
                picture.bare(QRect(0, 6, 1, 1), tokens().window)};
        };
        const QStringList allFine(5);
        bar.setValue(40);
        QCOMPARE(judge(tokens().accentFill), allFine);
        setBarColor(bar, NamedColor::purple);
        QCOMPARE(judge(tokens().named(NamedColor::purple)), allFine);
        bar.setEnabled(false);
        QCOMPARE(judge(tokens().disabled), allFine);
        bar.setValue(0);
        QCOMPARE(drawn(bar).filled(QRect(6, 8, 188, 4), tokens().divider, 1), fine);
        bar.setValue(1); // a dot at least
        QVERIFY(drawn(bar).amount(QRect(0, 6, 8, 8), tokens().disabled) > 20);
    }

    void scrollBars()
    {
        const auto bar = [](QStyle::State state, Qt::Orientation orientation, int maximum) {
            QStyleOptionSlider option;
            option.palette = QApplication::palette();
            const bool upright = orientation == Qt::Vertical;
            option.rect = QRect(0, 0, upright ? 12 : 200, upright ? 200 : 12);
            option.orientation = orientation;
            option.maximum = maximum;
            option.pageStep = 100;
            option.state = QStyle::State_Enabled | state;
            option.activeSubControls = state ? QStyle::SC_ScrollBarSlider : QStyle::SC_None;
            return drawn(option.rect.size(), tokens().window, [&](QPainter& painter) {
                QApplication::style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter);
            });
        };
        for (const auto orientation : {Qt::Vertical, Qt::Horizontal}) {
            const bool upright = orientation == Qt::Vertical;
            const QRect thumb = upright ? QRect(4, 8, 4, 80) : QRect(8, 4, 80, 4);
            const QRect rest = upright ? QRect(0, 102, 12, 98) : QRect(102, 0, 98, 12);
            const Picture usual = bar({}, orientation, 100);
            QCOMPARE(usual.contained(), fine);
            QCOMPARE(usual.filled(thumb, tokens().strongBorder, 1), fine);
            QCOMPARE(usual.bare(rest, tokens().window), fine);
            QCOMPARE(usual.bare(QRect(0, 0, 2, 2), tokens().window), fine);
            QCOMPARE(bar(QStyle::State_MouseOver, orientation, 100).filled(thumb, tokens().secondaryText, 1), fine);
            const Picture idle = bar({}, orientation, 0);
            QCOMPARE(idle.bare(idle.rect(), tokens().window), fine);
        }
    }

    void frames()
    {
        QPlainTextEdit edit;
        edit.resize(120, 60);
        const Picture field = drawn(edit);
        QCOMPARE(field.framed(field.rect(), tokens().strongBorder, 1), fine);
        QCOMPARE(field.filled(field.rect(), tokens().field, 0.9), fine);
        QListWidget list;
        list.resize(120, 60);
        const Picture view = drawn(list);
        QCOMPARE(view.framed(view.rect(), tokens().border, 1), fine);
        QCOMPARE(view.filled(view.rect(), tokens().surface, 0.9), fine);
    }

    void splitters()
    {
        for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
            QSplitter splitter(orientation);
            splitter.addWidget(new QWidget);
            splitter.addWidget(new QWidget);
            splitter.resize(100, 100);
            splitter.show();
            const Picture picture = drawn(*splitter.handle(1));
            const Ink line = picture.ink(picture.rect(), tokens().window);
            QCOMPARE(line.core, tokens().border);
            QCOMPARE(orientation == Qt::Horizontal ? line.bounds.width() : line.bounds.height(), 1);
            QCOMPARE(orientation == Qt::Horizontal ? line.bounds.height() : line.bounds.width(), 100);
        }
    }
};

ABISSORA_TEST(tst_ViewPictures);
#include "tst_ViewPictures.moc"

// SPDX-License-Identifier: MIT
#include "ControlLook.h"
#include "Literals.h"
#include "Painting.h"
#include "StylePictures.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOption>
#include <QTableWidget>
#include <QToolButton>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr QStyle::State usual = QStyle::State_Enabled;
constexpr QStyle::State hovered = usual | QStyle::State_MouseOver;
constexpr QStyle::State pressed = usual | QStyle::State_Sunken;
constexpr QSize iconSize(12, 12);

/// A full square of one colour, in every mode.
QIcon iconOf(const QColor& color)
{
    QPixmap square(iconSize);
    square.fill(color);
    QIcon icon;
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected})
        icon.addPixmap(square, mode);
    return icon;
}

} // namespace

/// Marks, icons and arrows: what stands in a control beside its text.
class tst_MarkPictures : public StylePictureTest
{
    Q_OBJECT

private:
    /// The middle of where a picture has that colour.
    static qreal middleOf(const Picture& picture, const QColor& color)
    {
        qreal sum = 0;
        qreal count = 0;
        for (int x = 0; x < picture.rect().width(); ++x) {
            const qreal here = picture.amount(QRect(x, 0, 1, picture.rect().height()), color);
            sum += here * (x + 0.5);
            count += here;
        }
        return sum / count;
    }

private Q_SLOTS:
    void checkBoxes()
    {
        const QColor lit = mix(tokens().surface, tokens().text, 0.05);
        const QColor off = mix(tokens().window, tokens().border, 0.4);
        const struct
        {
            QStyle::State state;
            QColor fill;
            QColor frame;
            QColor mark;
        } cases[]{
            {usual, tokens().surface, tokens().strongBorder, {}},
            {hovered, lit, tokens().strongBorder, {}},
            {usual | QStyle::State_On, tokens().accentFill, tokens().accentFill, tokens().onFill},
            {QStyle::State_None, off, tokens().border, {}},
            {QStyle::State_On, off, tokens().border, tokens().disabled},
        };
        for (const auto& expected : cases) {
            const Picture picture = primitive(QStyle::PE_IndicatorCheckBox,
                                              optionFor<QStyleOption>({22, 22}, expected.state), tokens().window);
            const QRect box(3, 3, 16, 16);
            const QRect inside(5, 5, 12, 12);
            QCOMPARE(picture.contained(), fine);
            QCOMPARE(picture.bare(QRect(0, 0, 22, 3), tokens().window), fine); // for the ring
            QVERIFY(picture.amount(QRect(3, 10, 1, 2), expected.frame) == 2);
            QCOMPARE(picture.filled(box, expected.fill, 0.4), fine);
            if (expected.mark.isValid())
                QCOMPARE(picture.inked(inside, expected.fill, expected.mark, 40), fine);
            else
                QCOMPARE(picture.bare(inside, expected.fill), fine);
        }
    }

    void arrowsPoint()
    {
        const auto arrow = [](QStyle::PrimitiveElement element) {
            return primitive(element, optionFor<QStyleOption>({20, 20}, usual), tokens().surface);
        };
        // Where a chevron's point is there is ink in the middle and none beside it.
        const auto judge = [](const Picture& picture, const QRect& point, const QList<QRect>& beside) {
            QStringList faults{picture.contained(), picture.inked(point, tokens().surface, tokens().text, 40)};
            for (const QRect& place : beside)
                faults.append(picture.bare(place, tokens().surface));
            return faults.join(QString());
        };
        const QRect above(9, 7, 2, 3);
        const QRect below(9, 10, 2, 3);
        const QRect left(7, 9, 3, 2);
        const QRect right(10, 9, 3, 2);
        QCOMPARE(judge(arrow(QStyle::PE_IndicatorArrowUp), above, {QRect(5, 6, 2, 2), QRect(13, 6, 2, 2)}), fine);
        QCOMPARE(judge(arrow(QStyle::PE_IndicatorArrowDown), below, {QRect(5, 12, 2, 2), QRect(13, 12, 2, 2)}), fine);
        QCOMPARE(judge(arrow(QStyle::PE_IndicatorArrowLeft), left, {QRect(6, 5, 2, 2), QRect(6, 13, 2, 2)}), fine);
        QCOMPARE(judge(arrow(QStyle::PE_IndicatorArrowRight), right, {QRect(12, 5, 2, 2), QRect(12, 13, 2, 2)}), fine);
    }

    void entriesWithIcons()
    {
        auto item = optionFor<QStyleOptionMenuItem>({200, 28}, usual);
        item.text = u"Erogatori"_s;
        item.font = QApplication::font();
        item.icon = iconOf(tokens().ok);
        item.maxIconWidth = iconSize.width();
        item.menuHasCheckableItems = true;
        const QRect place(4, 2, 26, 24);
        const Picture plain = control(QStyle::CE_MenuItem, item, tokens().surface);
        QVERIFY(plain.amount(place, tokens().ok) > 100);
        QCOMPARE(plain.amount(place, tokens().accentTint), 0);
        item.checked = true;
        const Picture checked = control(QStyle::CE_MenuItem, item, tokens().surface);
        QVERIFY(checked.amount(place, tokens().ok) > 100);
        QVERIFY(checked.amount(place, tokens().accentTint) > 20); // the picture itself is marked
        QVERIFY(checked.amount(place, tokens().accentInk) > 20);
        item.state |= QStyle::State_Selected;
        const Picture current = control(QStyle::CE_MenuItem, item, tokens().surface);
        QVERIFY(current.amount(place, tokens().onFill) > 20);
        QVERIFY(current.amount(place, tokens().accentTint) < 10);
        QCOMPARE(current.contained(), fine);
    }

    void entriesThatDestroy()
    {
        QMenu menu;
        menu.addAction(u"Modifica"_s);
        QAction* const entry = menu.addAction(u"Elimina"_s);
        setDestructiveLook(*entry);
        menu.show();
        const auto inkOf = [&](const QAction& action, QStyle::State state) {
            auto item = optionFor<QStyleOptionMenuItem>({}, state);
            item.rect = menu.actionGeometry(const_cast<QAction*>(&action));
            item.text = action.text();
            item.font = QApplication::font();
            const Picture picture = drawn(item.rect.size(), tokens().surface, [&](QPainter& painter) {
                painter.translate(-item.rect.topLeft());
                QApplication::style()->drawControl(QStyle::CE_MenuItem, &item, &painter, &menu);
            });
            const QColor ground = state & QStyle::State_Selected ? tokens().accentFill : tokens().surface;
            return picture.ink(picture.rect().adjusted(4, 3, -4, -3), ground).core;
        };
        const auto isNear = [](const QColor& seen, const QColor& token) {
            return std::abs(seen.red() - token.red()) < 40 && std::abs(seen.green() - token.green()) < 40 &&
                   std::abs(seen.blue() - token.blue()) < 40;
        };
        QVERIFY(isNear(inkOf(*entry, usual), tokens().danger));
        QVERIFY(isNear(inkOf(*menu.actions().constFirst(), usual), tokens().text));
        QVERIFY(isNear(inkOf(*entry, usual | QStyle::State_Selected), tokens().onFill));
        QVERIFY(isNear(inkOf(*entry, QStyle::State_None), tokens().disabled));
    }

    void everythingIsMirrored()
    {
        auto more = optionFor<QStyleOptionMenuItem>({200, 28}, usual);
        more.menuItemType = QStyleOptionMenuItem::SubMenu;
        more.direction = Qt::RightToLeft;
        const Picture submenu = control(QStyle::CE_MenuItem, more, tokens().surface);
        QCOMPARE(submenu.inked(QRect(2, 4, 28, 20), tokens().surface, tokens().text, 40), fine);
        QCOMPARE(submenu.bare(QRect(100, 4, 98, 20), tokens().surface), fine);

        auto button = optionFor<QStyleOptionButton>({120, 30}, usual);
        button.text = u"Salva"_s;
        button.icon = iconOf(tokens().ok);
        button.iconSize = iconSize;
        const auto iconOfButton = [&] {
            return middleOf(control(QStyle::CE_PushButton, button, tokens().window), tokens().ok);
        };
        const qreal before = iconOfButton();
        button.direction = Qt::RightToLeft;
        QVERIFY(before < 60);
        QVERIFY(iconOfButton() > 60);
    }

    void iconsOfButtonsAndFields()
    {
        auto button = optionFor<QStyleOptionButton>({120, 30}, usual);
        button.icon = iconOf(tokens().ok);
        button.iconSize = iconSize;
        const Picture alone = control(QStyle::CE_PushButton, button, tokens().window);
        QCOMPARE(alone.amount(alone.rect(), tokens().ok), 144);
        QVERIFY(std::abs(middleOf(alone, tokens().ok) - 60) <= 1);

        QComboBox combo;
        combo.setIconSize(iconSize);
        combo.addItem(iconOf(tokens().ok), u"Salva"_s);
        combo.resize(140, 30);
        const Picture field = drawn(combo);
        QCOMPARE(field.amount(field.rect(), tokens().ok), 144);
        QCOMPARE(field.inked(QRect(30, 5, 60, 20), tokens().field, tokens().text), fine);
    }

    void spinButtonsUnderThePointer()
    {
        auto option = optionFor<QStyleOptionSpinBox>({120, 30}, usual);
        option.buttonSymbols = QAbstractSpinBox::PlusMinus;
        option.stepEnabled = QAbstractSpinBox::StepUpEnabled;
        const QRect plus(95, 3, 3, 24); // beside the mark
        const QRect minus(68, 3, 3, 24);
        const auto picture = [&](QStyle::State state, QStyle::SubControl part) {
            option.state = state;
            option.activeSubControls = part;
            return drawn(option.rect.size(), tokens().window, [&](QPainter& painter) {
                QApplication::style()->drawComplexControl(QStyle::CC_SpinBox, &option, &painter);
            });
        };
        const auto veiled = [](float amount) { return mix(tokens().field, tokens().text, amount); };
        QCOMPARE(picture(hovered, QStyle::SC_SpinBoxUp).filled(plus, veiled(0.08F), 0.7), fine);
        QCOMPARE(picture(pressed, QStyle::SC_SpinBoxUp).filled(plus, veiled(0.16F), 0.7), fine);
        QCOMPARE(picture(usual, QStyle::SC_SpinBoxUp).bare(plus, tokens().field), fine);
        QCOMPARE(picture(hovered, QStyle::SC_SpinBoxDown).bare(minus, tokens().field), fine); // nothing below the least
    }

    void buttonsThatStayPressed()
    {
        QToolButton widget;
        setButtonLook(widget, ButtonLook::Plain);
        const auto picture = [&](QStyle::State state) {
            const auto option = optionFor<QStyleOptionToolButton>({30, 30}, state);
            return drawn(option.rect.size(), tokens().window, [&](QPainter& painter) {
                QApplication::style()->drawPrimitive(QStyle::PE_PanelButtonTool, &option, &painter, &widget);
            });
        };
        const QRect all(0, 0, 30, 30);
        const QColor chosen = mix(tokens().accentTint, tokens().text, 0.12);
        QCOMPARE(picture(usual | QStyle::State_On).framed(all, tokens().accentInk, 1), fine);
        QCOMPARE(picture(usual | QStyle::State_On).filled(all, chosen, 0.8), fine);
        QCOMPARE(picture(QStyle::State_On).framed(all, tokens().border, 1), fine);
        QCOMPARE(picture(QStyle::State_On).filled(all, tokens().window, 0.8), fine);
    }

    void headersThatSort()
    {
        const auto section = [](QStyleOptionHeader::SortIndicator indicator, Qt::LayoutDirection direction) {
            auto option = optionFor<QStyleOptionHeader>({120, 40}, usual);
            option.text = u"Nome"_s;
            option.textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
            option.position = QStyleOptionHeader::Middle;
            option.sortIndicator = indicator;
            option.direction = direction;
            return control(QStyle::CE_HeaderLabel, option, tokens().surface);
        };
        const QRect right(100, 10, 20, 20);
        const QRect left(0, 10, 20, 20);
        const Picture down = section(QStyleOptionHeader::SortDown, Qt::LeftToRight);
        const Picture up = section(QStyleOptionHeader::SortUp, Qt::LeftToRight);
        QCOMPARE(down.inked(right, tokens().surface, tokens().secondaryText, 40), fine);
        QVERIFY(down.ink(right.adjusted(0, 0, 0, -10), tokens().surface).area !=
                up.ink(right.adjusted(0, 0, 0, -10), tokens().surface).area); // one points up
        QCOMPARE(section(QStyleOptionHeader::None, Qt::LeftToRight).bare(right, tokens().surface), fine);
        const Picture mirrored = section(QStyleOptionHeader::SortDown, Qt::RightToLeft);
        QCOMPARE(mirrored.inked(left, tokens().surface, tokens().secondaryText, 40), fine);
        QCOMPARE(mirrored.inked(QRect(60, 5, 60, 30), tokens().surface, tokens().secondaryText), fine);
    }

    void headersOfTwoLines()
    {
        QTableWidget table(1, 1);
        table.setHorizontalHeaderLabels({u"Ultima manutenzione"_s});
        table.horizontalHeader()->resizeSection(0, 90);
        table.resize(300, 100);
        table.show();
        const Picture picture = drawn(*table.horizontalHeader());
        const qreal half = picture.rect().height() / 2.0;
        const QRectF upper(0, 0, 90, half);
        const QRectF lower(0, half, 90, half - 2);
        QCOMPARE(picture.inked(upper, tokens().surface, tokens().secondaryText), fine);
        QCOMPARE(picture.inked(lower, tokens().surface, tokens().secondaryText), fine);
    }

    void whatIsEmpty()
    {
        const auto area = optionFor<QStyleOption>({60, 30}, usual);
        const Picture header = control(QStyle::CE_HeaderEmptyArea, area, tokens().surface);
        QCOMPARE(header.filled(QRect(0, 29, 60, 1), tokens().border, 0.5), fine);
        QCOMPARE(header.bare(QRect(0, 0, 60, 28), tokens().surface), fine);
        const Picture menuBar = control(QStyle::CE_MenuBarEmptyArea, area, tokens().surface);
        QCOMPARE(menuBar.filled(menuBar.rect(), tokens().window, 1), fine);
        const Picture menu = control(QStyle::CE_MenuEmptyArea, area, tokens().surface);
        QCOMPARE(menu.bare(menu.rect(), tokens().surface), fine);
    }

    void whoUsesThePointerSeesNoRing()
    {
        constexpr QStyle::State held = usual | QStyle::State_HasFocus;
        const auto ringOf = [](QStyle::State state) {
            auto option = optionFor<QStyleOptionButton>({120, 30}, state);
            const Picture picture = control(QStyle::CE_PushButton, option, tokens().window);
            return picture.amount(picture.rect(), tokens().accentInk);
        };
        QVERIFY(ringOf(held | QStyle::State_KeyboardFocusChange) > 200);
        QCOMPARE(ringOf(held), 0);
    }

    void aBarStaysWithinItself()
    {
        auto option = optionFor<QStyleOptionProgressBar>({100, 20}, usual);
        option.maximum = 100;
        option.progress = 150;
        const Picture picture = control(QStyle::CE_ProgressBarContents, option, tokens().window);
        QCOMPARE(picture.contained(), fine);
        QCOMPARE(picture.filled(QRect(6, 8, 88, 4), tokens().accentFill, 1), fine);
    }

    void roundedWindowsLoseTheirCorners()
    {
        const QRegion region = roundedRegion(QRect(0, 0, 40, 20), 8);
        for (const QPoint corner : {QPoint(0, 0), QPoint(39, 0), QPoint(0, 19), QPoint(39, 19)})
            QVERIFY(!region.contains(corner));
        for (const QPoint side : {QPoint(20, 0), QPoint(0, 10), QPoint(38, 10), QPoint(20, 18), QPoint(20, 10)})
            QVERIFY(region.contains(side));
    }
};

ABISSORA_TEST(tst_MarkPictures);
#include "tst_MarkPictures.moc"

// SPDX-License-Identifier: MIT
#include "AbissoraStyle.h"
#include "ControlLook.h"
#include "Gui.h"
#include "Literals.h"
#include "Metrics.h"
#include "TestRunner.h"
#include "Theme.h"

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOptionSpinBox>
#include <QTableWidget>
#include <QTest>
#include <QToolTip>
#include <QWheelEvent>

using namespace abissora;

class tst_AbissoraStyle : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void theThemeSetsStyleFontAndPalette();
    void switchingTheSchemeKeepsStyleAndFont();
    void widgetsAreRepaintedInTheOtherScheme();
    void controlsAreEquallyHigh();
    void aLongerTextMakesAWiderButton();
    void buttonsShowTheirLook();
    void hoverPressAndDisabledShow();
    void aFocusedFieldHasARing();
    void textEditsAreFramedLikeFields();
    void spinButtonsStandSideBySide();
    void scrollBarsHaveNoButtons();
    void theScrollBarsThumbCoversItsShare();
    void headersAreInCaptionSize();
    void selectedRowsKeepTheirTextColor();
    void animationsAreShort();
    void theWheelDoesNotChangeAComboBox();
    void aMenuItemHasRoomForItsShortcut();

private:
    static QImage picture(QWidget& widget);
    static bool shows(const QImage& image, const QColor& color);
};

QImage tst_AbissoraStyle::picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(widget.palette().color(QPalette::Window));
    widget.render(&image, {}, {}, QWidget::DrawChildren);
    return image;
}

bool tst_AbissoraStyle::shows(const QImage& image, const QColor& color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

void tst_AbissoraStyle::initTestCase()
{
    applyTheme(*qApp, Scheme::Light);
}

void tst_AbissoraStyle::cleanup()
{
    applyTheme(*qApp, Scheme::Light);
}

void tst_AbissoraStyle::theThemeSetsStyleFontAndPalette()
{
    QVERIFY(qobject_cast<AbissoraStyle*>(QApplication::style()) != nullptr);
    QCOMPARE(QApplication::font().families().first(), u"Inter"_s);
    QVERIFY2(QApplication::font().families().size() > 1, "the system's font stands in where Inter is missing");
    QCOMPARE(QApplication::palette(), paletteFor(Scheme::Light));
    QCOMPARE(QToolTip::palette().color(QPalette::ToolTipBase), Tokens::of(Scheme::Light).surface);
    QVERIFY(qApp->styleSheet().isEmpty());
}

void tst_AbissoraStyle::switchingTheSchemeKeepsStyleAndFont()
{
    const QStyle* const style = QApplication::style();
    const QFont font = QApplication::font();
    applyTheme(*qApp, Scheme::Dark);
    QCOMPARE(QApplication::style(), style);
    QCOMPARE(QApplication::font(), font);
    QCOMPARE(QApplication::palette(), paletteFor(Scheme::Dark));
}

void tst_AbissoraStyle::widgetsAreRepaintedInTheOtherScheme()
{
    QPushButton button(u"Aggiorna"_s);
    button.resize(button.sizeHint());
    QVERIFY(shows(picture(button), Tokens::of(Scheme::Light).surface));
    applyTheme(*qApp, Scheme::Dark);
    test::settle(); // widgets hear of it by an event
    const QImage dark = picture(button);
    QVERIFY(shows(dark, Tokens::of(Scheme::Dark).surface));
    QVERIFY(!shows(dark, Tokens::of(Scheme::Light).surface));
}

void tst_AbissoraStyle::controlsAreEquallyHigh()
{
    QPushButton button(u"Aggiorna"_s);
    QLineEdit line;
    QComboBox combo;
    QSpinBox spin;
    for (const QWidget* control : std::initializer_list<const QWidget*>{&button, &line, &combo, &spin})
        QCOMPARE(control->sizeHint().height(), metrics::controlHeight);
}

void tst_AbissoraStyle::aLongerTextMakesAWiderButton()
{
    QPushButton button(u"Salva"_s);
    const int before = button.sizeHint().width();
    button.setText(u"Aggiungi la prima attrezzatura"_s);
    QFont drawn = button.font();
    drawn.setWeight(QFont::Medium);
    QVERIFY(button.sizeHint().width() > before);
    QVERIFY(button.sizeHint().width() >=
            QFontMetrics(drawn).horizontalAdvance(button.text()) + 2 * metrics::controlPadding);
}

void tst_AbissoraStyle::buttonsShowTheirLook()
{
    const Tokens& tokens = Tokens::of(Scheme::Light);
    QPushButton button(u"Elimina"_s);
    button.resize(button.sizeHint());
    QVERIFY(shows(picture(button), tokens.strongBorder));
    QVERIFY(!shows(picture(button), tokens.accentFill));
    setButtonLook(button, ButtonLook::Primary);
    QVERIFY(shows(picture(button), tokens.accentFill));
    QVERIFY(shows(picture(button), tokens.onFill));
    setButtonLook(button, ButtonLook::Destructive);
    QVERIFY(shows(picture(button), tokens.danger));
    setButtonLook(button, ButtonLook::Caution);
    QVERIFY(shows(picture(button), tokens.warning));
    setButtonLook(button, ButtonLook::Link);
    QVERIFY(shows(picture(button), tokens.accentInk));
    QVERIFY(!shows(picture(button), tokens.strongBorder));
}

void tst_AbissoraStyle::hoverPressAndDisabledShow()
{
    QPushButton button(u"Aggiorna"_s);
    button.resize(button.sizeHint());
    const QImage idle = picture(button);
    button.setAttribute(Qt::WA_UnderMouse);
    const QImage hovered = picture(button);
    button.setAttribute(Qt::WA_UnderMouse, false);
    button.setDown(true);
    const QImage pressed = picture(button);
    button.setDown(false);
    button.setEnabled(false);
    const QImage disabled = picture(button);
    QVERIFY(hovered != idle);
    QVERIFY(pressed != idle);
    QVERIFY(pressed != hovered);
    QVERIFY(!shows(disabled, Tokens::of(Scheme::Light).text));
}

void tst_AbissoraStyle::aFocusedFieldHasARing()
{
    QLineEdit line;
    line.resize(120, line.sizeHint().height());
    line.show();
    QVERIFY(QTest::qWaitForWindowActive(&line));
    line.setFocus();
    QTRY_VERIFY(line.hasFocus());
    const QImage image = picture(line);
    const QColor ring = Tokens::of(Scheme::Light).accentInk;
    QCOMPARE(image.pixelColor(60, 0), ring);
    QCOMPARE(image.pixelColor(60, 1), ring);
    QVERIFY(image.pixelColor(60, 2) != ring);
}

void tst_AbissoraStyle::textEditsAreFramedLikeFields()
{
    QPlainTextEdit edit;
    edit.resize(120, 60);
    const QImage image = picture(edit);
    QCOMPARE(image.pixelColor(60, 0), Tokens::of(Scheme::Light).strongBorder);
    QCOMPARE(image.pixelColor(0, 0), Tokens::of(Scheme::Light).window);
}

void tst_AbissoraStyle::spinButtonsStandSideBySide()
{
    QSpinBox spin;
    spin.resize(130, 30);
    QStyleOptionSpinBox option;
    option.initFrom(&spin);
    option.buttonSymbols = QAbstractSpinBox::PlusMinus;
    const auto part = [&](QStyle::SubControl control) {
        return spin.style()->subControlRect(QStyle::CC_SpinBox, &option, control, &spin);
    };
    const QRect minus = part(QStyle::SC_SpinBoxDown);
    const QRect plus = part(QStyle::SC_SpinBoxUp);
    QCOMPARE(minus.right() + 1, plus.left());
    QCOMPARE(minus.height(), plus.height());
    QVERIFY(!part(QStyle::SC_SpinBoxEditField).intersects(minus));
    option.buttonSymbols = QAbstractSpinBox::UpDownArrows;
    QVERIFY(part(QStyle::SC_SpinBoxUp).bottom() < part(QStyle::SC_SpinBoxDown).top());
}

void tst_AbissoraStyle::scrollBarsHaveNoButtons()
{
    QScrollBar bar(Qt::Vertical);
    bar.resize(bar.sizeHint().width(), 200);
    bar.setRange(0, 100);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    for (const auto control : {QStyle::SC_ScrollBarAddLine, QStyle::SC_ScrollBarSubLine})
        QVERIFY(bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, control, &bar).isEmpty());
}

void tst_AbissoraStyle::theScrollBarsThumbCoversItsShare()
{
    QScrollBar bar(Qt::Vertical);
    bar.resize(bar.sizeHint().width(), 200);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = Qt::Vertical;
    option.rect = bar.rect();
    option.maximum = 100;
    option.pageStep = 100;
    const auto thumb = [&] {
        return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, &bar);
    };
    QCOMPARE(thumb().height(), 100);
    QCOMPARE(thumb().top(), 0);
    option.sliderPosition = 100;
    QCOMPARE(thumb().bottom(), 199);
    option.maximum = 1000000;
    QVERIFY2(thumb().height() >= 20, "a thumb stays large enough to be taken");
}

void tst_AbissoraStyle::headersAreInCaptionSize()
{
    QTableWidget table(1, 2);
    table.ensurePolished();
    table.horizontalHeader()->ensurePolished();
    QVERIFY(table.horizontalHeader()->font().pointSizeF() < QApplication::font().pointSizeF());
    QCOMPARE(table.horizontalHeader()->font().weight(), QFont::DemiBold);
}

void tst_AbissoraStyle::selectedRowsKeepTheirTextColor()
{
    QTableWidget table(1, 1);
    table.setItem(0, 0, new QTableWidgetItem(u"Erogatore"_s));
    table.verticalHeader()->hide();
    table.setFocusPolicy(Qt::NoFocus);
    table.resize(160, 100);
    table.selectRow(0);
    const QImage row = picture(table);
    QVERIFY(shows(row, Tokens::of(Scheme::Light).selection));
    QVERIFY(!shows(row, Tokens::of(Scheme::Light).accentFill));
    setSelectionLook(table, SelectionLook::Pill);
    QVERIFY(shows(picture(table), Tokens::of(Scheme::Light).accentFill));
}

void tst_AbissoraStyle::animationsAreShort()
{
    QVERIFY(QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration) <= 150);
}

void tst_AbissoraStyle::theWheelDoesNotChangeAComboBox()
{
    QComboBox combo;
    combo.addItems({u"Erogatore"_s, u"Torcia"_s});
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&combo, &wheel);
    QCOMPARE(combo.currentIndex(), 0);
}

void tst_AbissoraStyle::aMenuItemHasRoomForItsShortcut()
{
    QMenu menu;
    QAction* const action = menu.addAction(u"Nuova attrezzatura"_s);
    action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
    const QFontMetrics metrics(menu.font());
    const int texts = metrics.horizontalAdvance(action->text()) +
                      metrics.horizontalAdvance(action->shortcut().toString(QKeySequence::NativeText));
    QVERIFY(menu.sizeHint().width() >= texts + metrics::spaceXL);
}

ABISSORA_TEST(tst_AbissoraStyle);
#include "tst_AbissoraStyle.moc"

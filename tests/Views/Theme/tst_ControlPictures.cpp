// SPDX-License-Identifier: MIT
#include "ControlLook.h"
#include "Literals.h"
#include "Painting.h"
#include "StylePictures.h"

#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QSpinBox>
#include <QStyleOption>
#include <QToolButton>

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr QStyle::State usual = QStyle::State_Enabled;
constexpr QStyle::State disabled = QStyle::State_None;
constexpr QStyle::State hovered = usual | QStyle::State_MouseOver;
constexpr QStyle::State pressed = usual | QStyle::State_Sunken;
constexpr QStyle::State focused = usual | QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
constexpr QStyle::State selected = usual | QStyle::State_Selected;

constexpr QSize controlSize(120, 30);
/// Well within a control, around its text.
constexpr QRect middle(20, 7, 80, 17);

QStyleOptionMenuItem menuItem(const QString& text, QStyle::State state)
{
    auto item = optionFor<QStyleOptionMenuItem>({200, 28}, state);
    item.text = text;
    item.font = QApplication::font();
    return item;
}

} // namespace

class tst_ControlPictures : public StylePictureTest
{
    Q_OBJECT

private:
    static Picture button(std::optional<ButtonLook> look, QStyle::State state,
                          QStyleOptionButton::ButtonFeatures features = QStyleOptionButton::None)
    {
        QPushButton widget;
        if (look)
            setButtonLook(widget, *look);
        auto option = optionFor<QStyleOptionButton>(controlSize, state);
        option.text = u"Salva"_s;
        option.features = features;
        return control(QStyle::CE_PushButton, option, tokens().window, &widget);
    }

    static QColor inkOf(ButtonLook look)
    {
        switch (look) {
        case ButtonLook::Primary:
            return tokens().onFill;
        case ButtonLook::Destructive:
        case ButtonLook::DestructiveLink:
            return tokens().danger;
        case ButtonLook::Caution:
            return tokens().warning;
        case ButtonLook::Positive:
            return tokens().ok;
        case ButtonLook::Link:
            return tokens().accentInk;
        default:
            return tokens().text;
        }
    }

private Q_SLOTS:
    void pushButtons_data()
    {
        QTest::addColumn<ButtonLook>("look");
        const auto* const names = "Plain\0Primary\0Destructive\0Caution\0Positive\0Borderless\0Link\0DestructiveLink\0";
        const char* name = names;
        for (int look = 0; look <= static_cast<int>(ButtonLook::DestructiveLink); ++look) {
            QTest::newRow(name) << static_cast<ButtonLook>(look);
            name += qstrlen(name) + 1;
        }
    }

    void pushButtons()
    {
        QFETCH(const ButtonLook, look);
        const bool filled = look == ButtonLook::Primary;
        const bool bordered = !filled && look < ButtonLook::Borderless;
        const auto lit = [&](qreal amount, int darker) {
            return filled ? tokens().accentFill.darker(darker) : mix(tokens().surface, tokens().text, amount);
        };
        const QColor rest = filled ? tokens().accentFill : bordered ? tokens().surface : tokens().window;
        const QColor off = filled ? tokens().border : tokens().window;
        const struct
        {
            QStyle::State state;
            QColor fill;
            QColor ink;
        } cases[]{{usual, rest, inkOf(look)},
                  {hovered, lit(0.05, 110), inkOf(look)},
                  {pressed, lit(0.12, 125), inkOf(look)},
                  {focused, rest, inkOf(look)},
                  {disabled, off, tokens().disabled}};
        for (const auto& expected : cases) {
            const Picture picture = button(look, expected.state);
            QCOMPARE(picture.contained(), fine);
            QCOMPARE(picture.inked(middle, expected.fill, expected.ink), fine);
            QCOMPARE(picture.filled(picture.rect().adjusted(6, 6, -6, -6), expected.fill, 0.6), fine);
            QCOMPARE(picture.at({0, 0}), tokens().window); // round
            if (expected.state == focused)
                QCOMPARE(picture.framed(picture.rect(), tokens().accentInk, 2), fine);
            else if (bordered)
                QCOMPARE(picture.framed(picture.rect(),
                                        expected.state == disabled ? tokens().border : tokens().strongBorder, 1),
                         fine);
            else
                QCOMPARE(picture.amount(QRect(50, 0, 20, 1), tokens().strongBorder), 0);
        }
    }

    void theDefaultButtonOfAForeignDialogIsPrimary()
    {
        const Picture picture = button(std::nullopt, usual, QStyleOptionButton::DefaultButton);
        QCOMPARE(picture.inked(middle, tokens().accentFill, tokens().onFill), fine);
        const Picture flat = button(std::nullopt, usual, QStyleOptionButton::Flat);
        QCOMPARE(flat.inked(flat.rect(), tokens().window, tokens().text), fine);
        const Picture menu = button(ButtonLook::Plain, usual, QStyleOptionButton::HasMenu);
        QVERIFY(menu.ink(middle, tokens().surface).bounds.right() >
                button(ButtonLook::Plain, usual).ink(middle, tokens().surface).bounds.right() + 3);
    }

    void aTooLongButtonTextEndsInDots()
    {
        auto option = optionFor<QStyleOptionButton>(controlSize, usual);
        option.text = QString(80, u'l');
        const Picture picture = control(QStyle::CE_PushButton, option, tokens().window);
        QVERIFY(picture.endsInDots(picture.rect().adjusted(2, 8, -2, -8), tokens().surface));
    }

    void fields()
    {
        QLineEdit line(u"Salva"_s);
        line.resize(controlSize);
        line.setCursorPosition(0);
        const auto judge = [&](const QColor& border, qreal width, const QColor& fill, const QColor& ink) {
            const Picture picture = width > 1 ? drawnFocused(line) : drawn(line);
            return QStringList{picture.framed(picture.rect(), border, width), picture.filled(middle, fill),
                               picture.inked(middle, fill, ink)};
        };
        const QStringList allFine(3);
        QCOMPARE(judge(tokens().strongBorder, 1, tokens().field, tokens().text), allFine);
        setInvalidLook(line, true);
        QCOMPARE(judge(tokens().danger, 1, tokens().field, tokens().text), allFine);
        QCOMPARE(judge(tokens().danger, 2, tokens().field, tokens().text), allFine);
        setInvalidLook(line, false);
        QCOMPARE(judge(tokens().accentInk, 2, tokens().field, tokens().text), allFine);
        line.setEnabled(false);
        QCOMPARE(judge(tokens().border, 1, tokens().window, tokens().disabled), allFine);
        QLineEdit empty;
        empty.resize(controlSize);
        empty.setPlaceholderText(u"Inserisci"_s);
        QCOMPARE(drawn(empty).inked(middle, tokens().field, tokens().secondaryText), fine);
    }

    void fieldsWithButtons_data()
    {
        QTest::addColumn<QString>("kind");
        QTest::addColumn<bool>("enabled");
        for (const bool enabled : {true, false}) {
            for (const auto* kind : {"combo box", "spin box", "plus and minus"})
                QTest::addRow("%s%s", kind, enabled ? "" : ", disabled") << QString::fromLatin1(kind) << enabled;
        }
    }

    void fieldsWithButtons()
    {
        QFETCH(const QString, kind);
        QFETCH(const bool, enabled);
        QComboBox combo;
        combo.addItem(u"Salva"_s);
        QSpinBox spin;
        spin.setValue(8);
        if (kind == "plus and minus"_L1)
            spin.setButtonSymbols(QAbstractSpinBox::PlusMinus);
        QWidget& field = kind == "combo box"_L1 ? static_cast<QWidget&>(combo) : spin;
        field.setEnabled(enabled);
        field.resize(controlSize);
        const Picture picture = drawn(field);
        const QColor fill = enabled ? tokens().field : tokens().window;
        const QColor mark = !enabled                 ? tokens().disabled
                            : kind == "combo box"_L1 ? tokens().text
                                                     : tokens().secondaryText;
        QCOMPARE(picture.framed(picture.rect(), enabled ? tokens().strongBorder : tokens().border, 1), fine);
        QCOMPARE(picture.inked(QRect(4, 5, 60, 20), fill, enabled ? tokens().text : tokens().disabled), fine);
        QCOMPARE(picture.inked(QRect(94, 3, 24, 24), fill, mark), fine);
    }

    void aSpinBoxAtItsEndHasOneFaintButton()
    {
        QSpinBox spin;
        spin.setButtonSymbols(QAbstractSpinBox::PlusMinus);
        spin.setValue(0);
        spin.resize(controlSize);
        const Picture picture = drawn(spin);
        const QRect minus(68, 4, 23, 22);
        const QRect plus(95, 4, 22, 22);
        QCOMPARE(picture.inked(minus, tokens().field, tokens().disabled, 40), fine);
        QCOMPARE(picture.inked(plus, tokens().field, tokens().secondaryText), fine);
        QCOMPARE(picture.amount(QRect(62, 14, 8, 1), tokens().border), 1); // the line beside the buttons
    }

    void toolButtons()
    {
        QToolButton widget;
        auto option = optionFor<QStyleOptionToolButton>({30, 30}, usual);
        QPixmap mark(8, 8);
        mark.fill(tokens().ok);
        option.icon = QIcon(mark);
        option.iconSize = mark.size();
        option.subControls = QStyle::SC_ToolButton;
        option.toolButtonStyle = Qt::ToolButtonIconOnly;
        const auto picture = [&](QStyle::State state) {
            option.state = state;
            return drawn({30, 30}, tokens().window, [&](QPainter& painter) {
                QApplication::style()->drawComplexControl(QStyle::CC_ToolButton, &option, &painter, &widget);
            });
        };
        const auto veiled = [](float amount) { return mix(tokens().window, tokens().text, amount); };
        const QRect edge(2, 10, 6, 10);
        for (const QStyle::State state : {usual, hovered, pressed, focused}) {
            QCOMPARE(picture(state).contained(), fine);
            QVERIFY(picture(state).amount(QRect(8, 8, 14, 14), tokens().ok) > 50);
        }
        QCOMPARE(picture(usual).bare(edge, tokens().window), fine);
        QCOMPARE(picture(hovered).filled(edge, veiled(0.08F), 1), fine);
        QCOMPARE(picture(pressed).filled(edge, veiled(0.16F), 1), fine);
        QCOMPARE(picture(focused).framed(QRect(0, 0, 30, 30), tokens().accentInk, 2), fine);
        setButtonLook(widget, ButtonLook::Plain);
        QCOMPARE(picture(usual).framed(QRect(0, 0, 30, 30), tokens().strongBorder, 1), fine);
        QCOMPARE(picture(usual).filled(edge, tokens().surface, 1), fine);
    }

    void menuItems_data()
    {
        QTest::addColumn<int>("state");
        QTest::newRow("usual") << int{usual};
        QTest::newRow("selected") << int{selected};
        QTest::newRow("disabled") << int{disabled};
        QTest::newRow("disabled, selected") << int{QStyle::State_Selected};
    }

    void menuItems()
    {
        QFETCH(const int, state);
        const bool enabled = state & QStyle::State_Enabled;
        const bool current = enabled && (state & QStyle::State_Selected);
        QStyleOptionMenuItem item = menuItem(u"Nuova\tCtrl+N"_s, QStyle::State(state));
        item.menuHasCheckableItems = true;
        item.checked = true;
        const Picture picture = control(QStyle::CE_MenuItem, item, tokens().surface);
        const QColor fill = current ? tokens().accentFill : tokens().surface;
        const QColor ink = !enabled ? tokens().disabled : current ? tokens().onFill : tokens().text;
        QCOMPARE(picture.contained(), fine);
        QCOMPARE(picture.filled(picture.rect(), fill, 0.7), fine);
        QCOMPARE(picture.at({0, 0}), tokens().surface);
        QCOMPARE(picture.inked(QRect(5, 5, 20, 18), fill, ink), fine);  // the mark
        QCOMPARE(picture.inked(QRect(28, 3, 60, 22), fill, ink), fine); // the text
        const QColor shortcut = enabled && !current ? tokens().secondaryText : ink;
        QCOMPARE(picture.inked(QRect(130, 3, 66, 22), fill, shortcut), fine);
        item.checked = false;
        QCOMPARE(control(QStyle::CE_MenuItem, item, tokens().surface).bare(QRect(5, 5, 20, 18), fill), fine);
    }

    void menuParts()
    {
        QStyleOptionMenuItem line = menuItem({}, usual);
        line.menuItemType = QStyleOptionMenuItem::Separator;
        const Ink hairline = control(QStyle::CE_MenuItem, line, tokens().surface).ink(line.rect, tokens().surface);
        QCOMPARE(hairline.core, tokens().border);
        QCOMPARE(hairline.bounds.height(), 1);
        QStyleOptionMenuItem more = menuItem(u"Altro"_s, usual);
        more.menuItemType = QStyleOptionMenuItem::SubMenu;
        QCOMPARE(control(QStyle::CE_MenuItem, more, tokens().surface)
                     .inked(QRect(170, 4, 28, 20), tokens().surface, tokens().text),
                 fine);
        const Picture panel =
            primitive(QStyle::PE_PanelMenu, optionFor<QStyleOption>({100, 60}, usual), tokens().window);
        QCOMPARE(panel.framed(panel.rect(), tokens().border, 1), fine);
        QCOMPARE(panel.filled(panel.rect(), tokens().surface, 0.9), fine);
        const Picture tip =
            primitive(QStyle::PE_PanelTipLabel, optionFor<QStyleOption>({100, 30}, usual), tokens().window);
        QCOMPARE(tip.framed(tip.rect(), tokens().strongBorder, 1), fine);
        QCOMPARE(tip.filled(tip.rect(), tokens().surface, 0.9), fine);
        for (const auto& [state, fill, ink] : {std::tuple(usual, tokens().window, tokens().text),
                                               std::tuple(selected, tokens().accentFill, tokens().onFill),
                                               std::tuple(disabled, tokens().window, tokens().disabled)}) {
            const Picture entry = control(QStyle::CE_MenuBarItem, menuItem(u"Archivio"_s, state), tokens().surface);
            QCOMPARE(entry.inked(entry.rect().adjusted(20, 4, -20, -4), fill, ink), fine);
            QCOMPARE(entry.contained(), fine);
        }
    }
};

ABISSORA_TEST(tst_ControlPictures);
#include "tst_ControlPictures.moc"

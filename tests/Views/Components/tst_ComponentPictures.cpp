// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Cards.h"
#include "Chip.h"
#include "EmptyState.h"
#include "Gui.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Painting.h"
#include "Picture.h"
#include "ProgressIndicator.h"
#include "SegmentedControl.h"
#include "Sheet.h"
#include "StatCard.h"
#include "Stepper.h"
#include "SymbolIcon.h"
#include "ToggleSwitch.h"

#include <QVBoxLayout>

using namespace abissora;
using namespace abissora::test;

namespace {

QIcon greenIcon()
{
    return symbolIcon(u"checkmark.circle.fill"_s, NamedColor::green);
}

/// On a ground of the window's colour, at the size that it asks for or at another.
template <typename Widget>
Widget& sized(Widget& widget, QSize size = {})
{
    widget.ensurePolished();
    widget.resize(size.isValid() ? size : widget.sizeHint());
    return widget;
}

QRect placeOf(const QWidget& part, const QWidget& whole)
{
    return {part.mapTo(&whole, QPoint()), part.size()};
}

} // namespace

class tst_ComponentPictures : public PictureTest
{
    Q_OBJECT

private:
    static QColor green() { return tokens().named(NamedColor::green); }

    static SegmentedControl& threeSegments(SegmentedControl& control)
    {
        control.addSegment(u"list.bullet"_s, u"Attrezzatura"_s);
        control.addSegment(u"Manutenzione"_s);
        control.addSegment(u"Statistiche"_s);
        control.setCurrentIndex(0);
        return sized(control);
    }

private Q_SLOTS:
    void cardsAreSurfacesWithABorder()
    {
        GroupBox box(u"Notifiche"_s, u"bell"_s);
        sized(box, {200, 90}).show();
        settle();
        const Picture picture = drawn(box);
        QCOMPARE(picture.framed(picture.rect(), tokens().border, 1), fine);
        QCOMPARE(picture.filled(picture.rect(), tokens().surface, 0.9), fine);
        for (const QPoint& corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 89), QPoint(199, 89)})
            QCOMPARE(picture.at(corner), tokens().window);
        QCOMPARE(picture.inked(QRect(6, 6, 30, 60), tokens().surface, tokens().named(NamedColor::blue)), fine);
        QCOMPARE(picture.inked(QRect(40, 6, 150, 60), tokens().surface, tokens().text), fine);
    }

    void aChipIsAPill()
    {
        Chip chip;
        chip.setIcon(greenIcon());
        chip.setText(QString(80, u'l'));
        sized(chip, {180, chip.sizeHint().height()}).show();
        settle();
        const Picture picture = drawn(chip);
        const QRect clear = placeOf(existing(chip, "clear"), chip);
        QCOMPARE(picture.filled(picture.rect(), tokens().accentTint), fine);
        QCOMPARE(picture.at({0, 0}), tokens().window);
        QCOMPARE(picture.at({179, 0}), tokens().window);
        QCOMPARE(picture.inked(QRect(8, 4, 20, 18), tokens().accentTint, green()), fine);
        QCOMPARE(picture.inked(clear, tokens().accentTint, tokens().secondaryText), fine);
        const QRect text(34, 4, clear.left() - 34, chip.height() - 8);
        QCOMPARE(picture.inked(text, tokens().accentTint, tokens().text), fine);
        QVERIFY(picture.endsInDots(text, tokens().accentTint));
    }

    void anEmptyStateIsSecondary()
    {
        EmptyState state(u"tray"_s, u"Nessuna attrezzatura"_s);
        state.setText(u"Aggiungine una"_s);
        sized(state, {300, 260}).show();
        settle();
        const Picture picture = drawn(state);
        for (const QWidget* part : state.findChildren<QWidget*>()) {
            if (part->isVisible() && part->parentWidget() == &state)
                QCOMPARE(picture.inked(placeOf(*part, state), tokens().window, tokens().secondaryText), fine);
        }
        QCOMPARE(visibleLabels(state).size(), 2);
    }

    void iconsAreInTheirColor()
    {
        IconView view(greenIcon(), 22);
        QCOMPARE(drawn(sized(view)).inked(view.rect(), tokens().window, green()), fine);
        IconLabel label(greenIcon(), u"Attivo"_s);
        const Picture labelled = drawn(sized(label));
        QCOMPARE(labelled.inked(QRect(0, 0, 17, label.height()), tokens().window, green()), fine);
        QCOMPARE(labelled.inked(label.rect().adjusted(20, 0, 0, 0), tokens().window, tokens().text), fine);
        IconTile tile(38);
        tile.setIcon(greenIcon(), NamedColor::green);
        const Picture tiled = drawn(sized(tile));
        const QColor tint = mix(tokens().window, green(), 0.15);
        QVERIFY(tiled.amount(tile.rect(), tint) > 400);
        QCOMPARE(tiled.inked(QRect(10, 10, 18, 18), tint, green()), fine);
        QCOMPARE(tiled.at({4, 4}), tokens().window); // round
    }

    void theIndicatorTurns()
    {
        ProgressIndicator indicator;
        sized(indicator);
        const Picture first = drawn(indicator);
        const QPoint middle = indicator.rect().center();
        for (const QRect& quarter : {QRect(0, 0, 8, 8), QRect(8, 0, 8, 8), QRect(0, 8, 8, 8), QRect(8, 8, 8, 8)})
            QVERIFY(first.ink(quarter, tokens().window).area > 2);
        QCOMPARE(first.inked(QRect(6, 0, 4, 6), tokens().window, tokens().secondaryText), fine);
        QCOMPARE(first.bare(QRect(middle, QSize(1, 1)), tokens().window), fine);
        const auto inkAbove = [&] { return drawn(indicator).ink(QRect(6, 0, 4, 6), tokens().window).core; };
        const QColor before = inkAbove();
        indicator.show();
        QTRY_VERIFY(inkAbove() != before);
    }

    void anOpenSheetDimsItsWindow()
    {
        QWidget window;
        sized(window, {300, 200}).show();
        QColor veil = tokens().scrim;
        veil.setAlpha(255);
        const QColor dimmed = mix(tokens().window, veil, tokens().scrim.alphaF());
        Sheet sheet(u"Nuova"_s, &window);
        sheet.open();
        settle();
        QCOMPARE(drawn(window).filled(window.rect(), dimmed, 1), fine);
        sheet.reject();
        settle();
        QCOMPARE(drawn(window).filled(window.rect(), tokens().window, 1), fine);
    }

    void segmentsShowWhichIsChosen()
    {
        SegmentedControl control;
        threeSegments(control).show();
        settle();
        const QColor ground = schemeOf(control.palette()) == Scheme::Dark ? tokens().divider : tokens().sidebar;
        const auto segments = control.findChildren<QAbstractButton*>();
        const auto place = [&](int index) { return placeOf(*segments.at(index), control); };
        const auto inner = [&](int index) { return place(index).adjusted(6, 4, -6, -4); };
        const Picture usual = drawn(control);
        QCOMPARE(usual.framed(usual.rect(), tokens().border, 1), fine);
        QCOMPARE(usual.framed(place(0), tokens().strongBorder, 1), fine);
        QCOMPARE(usual.inked(inner(0), tokens().surface, tokens().text), fine);
        QCOMPARE(
            usual.inked(QRect(inner(0).left(), inner(0).top(), 24, inner(0).height()), tokens().surface, tokens().text),
            fine); // its symbol
        for (const int other : {1, 2})
            QCOMPARE(usual.inked(inner(other), ground, tokens().secondaryText), fine);

        segments.at(1)->setAttribute(Qt::WA_UnderMouse);
        QCOMPARE(drawn(control).inked(inner(1), mix(ground, tokens().text, 0.06), tokens().secondaryText), fine);
        segments.at(1)->setDown(true);
        QCOMPARE(drawn(control).inked(inner(1), mix(ground, tokens().text, 0.12), tokens().secondaryText), fine);
        segments.at(1)->setDown(false);

        control.setEnabled(false);
        const Picture off = drawn(control);
        QCOMPARE(off.framed(place(0), tokens().border, 1), fine);
        QCOMPARE(off.inked(inner(0), tokens().surface, tokens().disabled), fine);
        QCOMPARE(off.inked(inner(1), ground, tokens().disabled), fine);
    }

    void aFocusedSegmentHasARing()
    {
        SegmentedControl control;
        threeSegments(control);
        auto& segment = *control.findChildren<QAbstractButton*>().constFirst();
        QCOMPARE(drawnFocused(segment).framed(segment.rect(), tokens().accentInk, 2), fine);
    }

    void separatorsAreHairlines()
    {
        for (const auto weight : {Separator::Weight::Border, Separator::Weight::Divider}) {
            Separator line(weight);
            const Picture picture = drawn(sized(line, {80, 1}));
            QCOMPARE(picture.filled(line.rect(),
                                    weight == Separator::Weight::Border ? tokens().border : tokens().divider, 1),
                     fine);
        }
    }

    void aStatCardShowsSymbolFigureAndTitle()
    {
        StatCard card(u"Totale Articoli"_s, u"folder.fill"_s, NamedColor::blue);
        card.setValue(u"17"_s);
        sized(card, {180, card.sizeHint().height()});
        const Picture picture = drawn(card);
        QCOMPARE(picture.framed(picture.rect(), tokens().border, 1), fine);
        QCOMPARE(picture.inked(QRect(12, 12, 30, 28), tokens().surface, tokens().named(NamedColor::blue)), fine);
        QCOMPARE(picture.inked(QRect(12, 48, 150, 24), tokens().surface, tokens().text), fine);
        QCOMPARE(picture.inked(QRect(12, card.height() - 27, 150, 20), tokens().surface, tokens().secondaryText), fine);
        QVERIFY(picture.ink(QRect(12, 48, 150, 24), tokens().surface).bounds.height() > 12); // large
    }

    void itsDigitsStandInColumns()
    {
        StatCard card(u"Totale"_s, u"folder.fill"_s, NamedColor::blue);
        const auto figure = [&](const QString& value) {
            card.setValue(value);
            sized(card, {180, card.sizeHint().height()});
            return drawn(card).ink(QRect(12, 48, 150, 24), tokens().surface).bounds;
        };
        QCOMPARE(figure(u"18"_s).right(), figure(u"88"_s).right());
        QVERIFY(figure(u"18"_s).left() > figure(u"88"_s).left());
        QCOMPARE(figure(u"1118"_s).right(), figure(u"8888"_s).right());
    }

    void aStepperShowsItsValueAndWhereItMayGo()
    {
        Stepper stepper;
        stepper.setRange(7, 90);
        stepper.setSuffix(u" giorni"_s);
        stepper.setValue(7);
        const Picture picture = drawn(sized(stepper));
        const int right = stepper.width();
        const int height = stepper.height() - 8;
        QCOMPARE(picture.framed(picture.rect(), tokens().strongBorder, 1), fine);
        QCOMPARE(picture.inked(QRect(4, 4, right - 60, height), tokens().field, tokens().text), fine);
        QCOMPARE(picture.inked(QRect(right - 51, 4, 22, height), tokens().field, tokens().disabled, 40), fine);
        QCOMPARE(picture.inked(QRect(right - 24, 4, 22, height), tokens().field, tokens().secondaryText), fine);
    }

    void aSwitchShowsWhereItStands()
    {
        ToggleSwitch toggle(u"Abilita"_s);
        sized(toggle, {200, toggle.sizeHint().height()});
        const QRect track(164, (toggle.height() - 20) / 2, 36, 20);
        const auto judge = [&](bool on, const QColor& ground, const QColor& knob, const QColor& ink) {
            const Picture picture = drawn(toggle);
            const QRect left(track.left() + 6, track.top() + 6, 8, 8);
            const QRect right(track.right() - 13, track.top() + 6, 8, 8);
            return QStringList{picture.filled(on ? right : left, knob, 1), picture.filled(on ? left : right, ground, 1),
                               picture.inked(QRect(0, 0, 150, toggle.height()), tokens().window, ink),
                               picture.at(track.topLeft()) == tokens().window ? fine : u"not round"_s};
        };
        const QStringList allFine(4);
        QCOMPARE(judge(false, tokens().strongBorder, tokens().onFill, tokens().text), allFine);
        toggle.setChecked(true);
        QCOMPARE(judge(true, tokens().accentFill, tokens().onFill, tokens().text), allFine);
        QVERIFY(drawnFocused(toggle).amount(QRect(track.left() + 10, track.top(), 16, 2), tokens().accentInk) > 30);
        toggle.clearFocus();
        toggle.setEnabled(false);
        QCOMPARE(judge(true, tokens().border, tokens().surface, tokens().disabled), allFine);
    }

    void sheetsAndAlertsAreRoundPanels()
    {
        Sheet sheet(u"Nuova Attrezzatura"_s);
        sheet.setPrimaryText(u"Salva"_s);
        sized(sheet, {400, 200}).show();
        settle();
        const Picture form = drawn(sheet);
        QCOMPARE(form.framed(form.rect(), tokens().border, 1), fine);
        QCOMPARE(form.inked(QRect(130, 10, 140, 40), tokens().window, tokens().text), fine); // the title
        QVERIFY(form.amount(placeOf(existing(sheet, "primary"), sheet), tokens().accentFill) > 400);
        QVERIFY(form.amount(QRect(1, 20, 398, 100), tokens().border) > 390); // the line below the header
        Alert alert(Alert::Kind::Question, u"Conferma"_s, u"Elimina?"_s);
        sized(alert, {400, 180}).show();
        settle();
        const Picture question = drawn(alert);
        QCOMPARE(question.framed(question.rect(), tokens().border, 1), fine);
        const auto labels = alert.findChildren<WrapLabel*>();
        QCOMPARE(labels.size(), 2);
        QCOMPARE(question.inked(placeOf(*labels.at(0), alert), tokens().window, tokens().text), fine);
        QCOMPARE(question.inked(placeOf(*labels.at(1), alert), tokens().window, tokens().secondaryText), fine);
        QCOMPARE(question.inked(placeOf(existing(alert, "destructive"), alert).adjusted(8, 6, -8, -6), tokens().surface,
                                tokens().danger),
                 fine);
    }

    void labelsAreInTheirInk()
    {
        for (QColor Tokens::*ink : {&Tokens::text, &Tokens::secondaryText, &Tokens::danger, &Tokens::warning}) {
            InkLabel line(TextStyle::Body, ink, u"Hello"_s);
            QCOMPARE(drawn(sized(line)).inked(line.rect(), tokens().window, tokens().*ink), fine);
            WrapLabel lines(TextStyle::Body, ink, u"Una riga che va a capo"_s);
            sized(lines, {80, lines.heightForWidth(80)});
            const Picture picture = drawn(lines);
            QCOMPARE(picture.inked(lines.rect(), tokens().window, tokens().*ink), fine);
            for (const bool lower : {false, true})
                QVERIFY(picture.ink(QRect(0, lower ? lines.height() - 14 : 0, 80, 14), tokens().window).area > 20);
            lines.setAlignment(Qt::AlignTop);
            sized(lines, {200, 60});
            QCOMPARE(drawn(lines).bare(QRect(0, 30, 200, 30), tokens().window), fine);
        }
    }
};

ABISSORA_TEST(tst_ComponentPictures);
#include "tst_ComponentPictures.moc"

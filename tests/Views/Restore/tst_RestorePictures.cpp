// SPDX-License-Identifier: MIT
#include "Painting.h"
#include "Picture.h"
#include "RestoreParts.h"

using namespace abissora;
using namespace abissora::test;

namespace {

constexpr int thin = 60; // strokes of small letters
constexpr int chosen = 0;
constexpr int plain = 1;
constexpr int damaged = 2;

QRect placeOf(const QWidget& widget, const QWidget& on)
{
    return {widget.mapTo(&on, QPoint()), widget.size()};
}

} // namespace

class tst_RestorePictures : public PictureTest
{
    Q_OBJECT

private Q_SLOTS:
    void aStateIsThreeLinesAndASymbol()
    {
        KeptRegister f;
        const ShownRestore s(f);
        StateButton& state = *s.states().at(plain);
        const Picture picture(state, scale());
        const QColor ground = state.palette().color(QPalette::Window);
        QCOMPARE(picture.inked(state.lineRect(0), ground, tokens().text), fine);
        QCOMPARE(picture.inked(state.lineRect(1), ground, tokens().secondaryText, thin), fine);
        QCOMPARE(picture.inked(state.lineRect(2), ground, tokens().secondaryText, thin), fine);
        const QRect symbol(0, state.lineRect(2).top(), state.lineRect(2).left() - 2, state.lineRect(2).height());
        QCOMPARE(picture.inked(symbol, ground, tokens().secondaryText, thin), fine);
        QCOMPARE(picture.contained(), fine);
    }

    void whatCannotBeReadIsInTheColourOfWarnings()
    {
        KeptRegister f;
        const ShownRestore s(f);
        StateButton& state = *s.states().at(damaged);
        const Picture picture(state, scale());
        const QColor ground = state.palette().color(QPalette::Window);
        QCOMPARE(picture.inked(state.lineRect(0), ground, tokens().text), fine);
        QCOMPARE(picture.inked(state.lineRect(2), ground, tokens().warning, thin), fine);
        const QRect symbol(0, state.lineRect(2).top(), state.lineRect(2).left() - 2, state.lineRect(2).height());
        QCOMPARE(picture.inked(symbol, ground, tokens().warning), fine);
    }

    void theChosenStateStandsOut()
    {
        KeptRegister f;
        const ShownRestore s(f);
        const Picture picture = drawn(*s.sheet);
        QCOMPARE(picture.filled(placeOf(*s.states().at(chosen), *s.sheet), tokens().selection), fine);
        QCOMPARE(picture.filled(placeOf(*s.states().at(plain), *s.sheet), tokens().surface), fine);
    }

    void theChosenWarningIsReadable()
    {
        KeptRegister f;
        ShownRestore s(f);
        QTest::mouseClick(s.states().at(damaged), Qt::LeftButton);
        StateButton& state = *s.states().at(damaged);
        const Picture picture(state, scale());
        QCOMPARE(picture.inked(state.lineRect(2), tokens().selection, tokens().text, thin), fine);
    }

    void differencesStandOnACard()
    {
        KeptRegister f;
        const ShownRestore s(f);
        QWidget& card = part(*s.sheet, u"differences");
        const Picture picture = drawn(card);
        QCOMPARE(picture.framed(card.rect(), tokens().border, 1), fine);
        QCOMPARE(picture.filled(card.rect(), tokens().surface), fine);
        int judged = 0;
        for (const auto& [name, ink] :
             {std::pair{u"groupTitle"_s, tokens().text}, std::pair{u"differenceName"_s, tokens().text},
              std::pair{u"differenceDetail"_s, tokens().secondaryText},
              std::pair{u"differenceBecomes"_s, tokens().text}}) {
            for (const QWidget* label : card.findChildren<QWidget*>(name)) {
                if (!label->isVisible())
                    continue;
                ++judged;
                QCOMPARE(picture.inked(placeOf(*label, card), tokens().surface, ink, thin), fine);
            }
        }
        QCOMPARE(judged, 7); // two titles, two names, two details, one new text
    }

    void theNumbersStandOnATint()
    {
        KeptRegister f;
        const ShownRestore s(f);
        QWidget& card = part(*s.sheet, u"differences");
        const Picture picture = drawn(card);
        const QList<QWidget*> badges = card.findChildren<QWidget*>(u"groupCount"_s);
        QCOMPARE(badges.size(), 2);
        const QColor green = mix(tokens().surface, tokens().ok, 0.12);
        QVERIFY(picture.amount(placeOf(*badges.first(), card), green) > 60);
        QCOMPARE(picture.inked(placeOf(*badges.first(), card).adjusted(5, 2, -5, -2), green, tokens().ok, thin), fine);
    }

    void aLongNameEndsInDots()
    {
        KeptRegister f;
        f.keep(seaState, {torch(), equipment(2, u"Pinne"_s), equipment(7, QString(200, u'l'))});
        const ShownRestore s(f);
        QWidget& card = part(*s.sheet, u"differences");
        const Picture picture = drawn(card);
        QVERIFY(picture.endsInDots(placeOf(part(card, u"differenceName"), card), tokens().surface));
    }
};

ABISSORA_TEST(tst_RestorePictures);
#include "tst_RestorePictures.moc"

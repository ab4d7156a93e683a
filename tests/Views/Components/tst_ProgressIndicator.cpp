// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Literals.h"
#include "ProgressIndicator.h"

#include <QProxyStyle>

using namespace abissora;

namespace {

class AnimationStyle final : public QProxyStyle
{
public:
    explicit AnimationStyle(int duration)
        : m_duration(duration)
    {}

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_Widget_Animation_Duration ? m_duration
                                                    : QProxyStyle::styleHint(hint, option, widget, returned);
    }

private:
    int m_duration;
};

} // namespace

class tst_ProgressIndicator : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void itTurnsWhileItIsVisible();
    void itStandsStillWithoutAnimations();
    void itCanBeNamed();
};

void tst_ProgressIndicator::itTurnsWhileItIsVisible()
{
    AnimationStyle style(100);
    ProgressIndicator indicator;
    indicator.setStyle(&style);
    QVERIFY(!indicator.isTurning());
    test::activate(indicator);
    QVERIFY(indicator.isTurning());
    indicator.hide();
    QVERIFY(!indicator.isTurning());
}

void tst_ProgressIndicator::itStandsStillWithoutAnimations()
{
    AnimationStyle style(0);
    ProgressIndicator indicator;
    indicator.setStyle(&style);
    test::activate(indicator);
    QVERIFY(!indicator.isTurning());
}

void tst_ProgressIndicator::itCanBeNamed()
{
    ProgressIndicator indicator;
    indicator.setAccessibleName(u"Controllo in corso..."_s);
    QCOMPARE(roleOf(indicator), QAccessible::Animation);
    QCOMPARE(nameOf(indicator), u"Controllo in corso..."_s);
}

ABISSORA_TEST(tst_ProgressIndicator);
#include "tst_ProgressIndicator.moc"

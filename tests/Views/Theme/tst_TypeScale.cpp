// SPDX-License-Identifier: MIT
#include "Metrics.h"
#include "TestRunner.h"
#include "TypeScale.h"

#include <QApplication>
#include <QFontMetrics>
#include <QTest>

using namespace abissora;

class tst_TypeScale : public test::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void sizesFollowTheApplicationsFont_data();
    void sizesFollowTheApplicationsFont();
    void aFontInPixelsIsScaledInPixels();
    void controlsGrowWithTheText();
    void lengthsGrowWithTheTextAndNeverShrink();
};

void tst_TypeScale::sizesFollowTheApplicationsFont_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<double>("factor");
    QTest::addColumn<int>("weight");
    const auto row = [](const char* name, TextStyle style, double factor, QFont::Weight weight) {
        QTest::newRow(name) << static_cast<int>(style) << factor << static_cast<int>(weight);
    };
    row("caption", TextStyle::Caption, 0.85, QFont::Normal);
    row("caption, semibold", TextStyle::CaptionSemibold, 0.85, QFont::DemiBold);
    row("callout", TextStyle::Callout, 0.92, QFont::Normal);
    row("body", TextStyle::Body, 1.0, QFont::Normal);
    row("body, medium", TextStyle::BodyMedium, 1.0, QFont::Medium);
    row("headline", TextStyle::Headline, 1.15, QFont::DemiBold);
    row("title", TextStyle::Title, 1.5, QFont::Bold);
    row("large title", TextStyle::LargeTitle, 2.0, QFont::Bold);
    row("statistics value", TextStyle::StatisticsValue, 2.15, QFont::Bold);
}

void tst_TypeScale::sizesFollowTheApplicationsFont()
{
    QFETCH(const int, style);
    QFETCH(const double, factor);
    QFETCH(const int, weight);
    const QFont before = QApplication::font();
    for (const double size : {9.0, 10.0, 16.0}) {
        QFont base = before;
        base.setPointSizeF(size);
        QApplication::setFont(base);
        const QFont scaled = font(static_cast<TextStyle>(style));
        QApplication::setFont(before);
        QCOMPARE(scaled.pointSizeF(), size * factor);
        QCOMPARE(scaled.weight(), weight);
    }
}

void tst_TypeScale::aFontInPixelsIsScaledInPixels()
{
    QFont base;
    base.setPixelSize(20);
    QCOMPARE(scaled(base, TextStyle::Title).pixelSize(), 30);
}

void tst_TypeScale::controlsGrowWithTheText()
{
    QFont small;
    small.setPointSizeF(8);
    QCOMPARE(controlHeight(QFontMetrics(small)), metrics::controlHeight);
    QFont large;
    large.setPointSizeF(24);
    QVERIFY(controlHeight(QFontMetrics(large)) > QFontMetrics(large).height());
}

void tst_TypeScale::lengthsGrowWithTheTextAndNeverShrink()
{
    QFont small;
    small.setPixelSize(6);
    QCOMPARE(withText(150, QFontMetrics(small)), 150);
    QFont large;
    large.setPixelSize(40);
    QVERIFY(withText(150, QFontMetrics(large)) > 300);
}

ABISSORA_TEST(tst_TypeScale);
#include "tst_TypeScale.moc"

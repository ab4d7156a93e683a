// SPDX-License-Identifier: MIT
#include "ComponentTest.h"
#include "Labels.h"
#include "Literals.h"

#include <QHelpEvent>
#include <QToolTip>

using namespace abissora;

class tst_Labels : public test::ComponentTest
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void anInkLabelFollowsTheScheme();
    void aWrapLabelBreaksInsideWordsToo();
    void anElidedLabelTellsTheRestInItsToolTip();
    void aToolTipTakesNothingForMarkup();
};

void tst_Labels::cleanup()
{
    applyTheme(*qApp, Scheme::Light);
    QToolTip::hideText();
}

void tst_Labels::anInkLabelFollowsTheScheme()
{
    InkLabel label(TextStyle::Body, &Tokens::danger, u"Scaduta"_s);
    QCOMPARE(label.palette().color(QPalette::WindowText), Tokens::of(Scheme::Light).danger);
    applyTheme(*qApp, Scheme::Dark);
    test::settle();
    QCOMPARE(label.palette().color(QPalette::WindowText), Tokens::of(Scheme::Dark).danger);
}

void tst_Labels::aWrapLabelBreaksInsideWordsToo()
{
    const WrapLabel label(TextStyle::Body, &Tokens::text, QString(60, u'm'));
    const int line = label.fontMetrics().height();
    QCOMPARE(label.heightForWidth(label.sizeHint().width()), line);
    QVERIFY(label.heightForWidth(label.sizeHint().width() / 2) >= 2 * line);
    QVERIFY(label.minimumSizeHint().width() < label.sizeHint().width() / 10);
}

void tst_Labels::anElidedLabelTellsTheRestInItsToolTip()
{
    ElidedLabel label(TextStyle::Body, &Tokens::text);
    label.setText(u"Computer <b>Suunto</b>\nEON Core"_s);
    const auto tip = [&label] {
        QHelpEvent event(QEvent::ToolTip, {}, {});
        QCoreApplication::sendEvent(&label, &event);
        return QToolTip::text();
    };
    label.resize(label.sizeHint());
    test::activate(label);
    QCOMPARE(tip(), QString());
    label.resize(label.sizeHint().width() / 2, label.height());
    QCOMPARE(tip(), u"<p>Computer &lt;b&gt;Suunto&lt;/b&gt;\nEON Core</p>"_s);
}

void tst_Labels::aToolTipTakesNothingForMarkup()
{
    QCOMPARE(toolTipText(u"A & B < C"_s), u"A & B < C"_s);
    QCOMPARE(toolTipText(u"<b>GAV</b>"_s), u"<p>&lt;b&gt;GAV&lt;/b&gt;</p>"_s);
}

ABISSORA_TEST(tst_Labels);
#include "tst_Labels.moc"

// SPDX-License-Identifier: MIT
#include "FocusInSight.h"
#include "Literals.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypesParts.h"

using namespace abissora;
using namespace abissora::test;

class tst_TypeKeys : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void whatHasTheFocusIsInSight_data() { addWindowSizes(); }

    void whatHasTheFocusIsInSight()
    {
        QFETCH(QSize, size);
        RegisterFixture f;
        OpenManagement management(f);
        TypeForm form(f, boa());
        for (auto* window : {&management.window, &form.window})
            window->resize(size);
        settle();
        for (QWidget* sheet : std::initializer_list<QWidget*>{&management.sheet, &form.sheet}) {
            activate(*sheet);
            QCOMPARE(stopsOutOfSight(*sheet), QStringList());
            QCOMPARE(stopsOutOfSight(*sheet, true), QStringList());
        }
    }

    void altAndALetterLeadToEachControlOfTheForm()
    {
        RegisterFixture f;
        TypeForm o(f, boa());
        for (const auto& [key, name] : {std::pair(Qt::Key_I, u"interval"_s), std::pair(Qt::Key_N, u"name"_s)}) {
            QTest::keyClick(o.sheet.focusWidget(), key, Qt::AltModifier);
            QCOMPARE(o.sheet.focusWidget()->objectName(), name);
        }
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_S, Qt::AltModifier);
        QTRY_VERIFY(!o.sheet.isVisible());
    }

    void altAndALetterPressTheButtonsOfTheList()
    {
        RegisterFixture f;
        OpenManagement o(f);
        f.types.setTypes({});
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(f.types.types().size(), 16);
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_N, Qt::AltModifier);
        QTRY_VERIFY(o.form() != nullptr);
    }

    void returnPressesTheFocusedButtons()
    {
        RegisterFixture f;
        OpenManagement o(f);
        f.types.setTypes({});
        settle();
        usable(o.sheet, "resetTypes").setFocus(Qt::TabFocusReason);
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Return);
        QCOMPARE(f.types.types().size(), 16);
        usable(o.sheet, "cancel").setFocus(Qt::TabFocusReason);
        QTest::keyClick(o.sheet.focusWidget(), Qt::Key_Enter);
        QVERIFY(!o.sheet.isVisible());
    }

    void searchingForAnIconMovesNothing()
    {
        RegisterFixture f;
        TypeForm o(f, boa());
        auto& search = usable<QLineEdit>(o.sheet, "iconSearch");
        const auto places = [&] {
            QList<QRect> found;
            for (const char* part : {"name", "interval", "iconSearch", "primary"}) {
                const QWidget& widget = usable(o.sheet, part);
                found.append(QRect(widget.mapTo(&o.sheet, QPoint()), widget.size()));
            }
            return found;
        };
        search.setFocus();
        settle();
        const QList<QRect> before = places();
        const QRect sheet = o.sheet.geometry();
        for (const auto& text : {u"b"_s, u"o"_s, u"mbolaxyz"_s}) {
            QTest::keyClicks(&search, text);
            settle();
            QCOMPARE(places(), before);
            QCOMPARE(o.sheet.geometry(), sheet);
        }
    }

    void theReasonIsInSight()
    {
        RegisterFixture f;
        TypeForm o(f, newType);
        for (const QSize size : {QSize(1000, 700), QSize(1280, 800)}) {
            o.window.resize(size);
            settle();
            const QWidget& reason = part(o.sheet, "invalidName");
            QCOMPARE(reason.visibleRegion().boundingRect(), reason.rect());
        }
    }
};

ABISSORA_TEST(tst_TypeKeys);

#include "tst_TypeKeys.moc"

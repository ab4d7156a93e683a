// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "EquipmentTableView.h"
#include "EquipmentTypeFormView.h"
#include "EquipmentTypeManagementView.h"
#include "FilterMenu.h"
#include "IconViews.h"
#include "Literals.h"
#include "MainWindow.h"
#include "ShellFixture.h"
#include "SidebarView.h"
#include "SymbolIcon.h"
#include "TestRunner.h"
#include "Theme.h"
#include "TypeAppearance.h"

#include <QComboBox>
#include <QLineEdit>

using namespace abissora;
using namespace abissora::test;

namespace {

EquipmentTypeModel ownType(const QString& name = u"Boa"_s)
{
    return {SequentialIds::at(900), name, u"dive.reel"_s, u"teal"_s, 90, true};
}

Equipment buoy()
{
    Equipment item = makeItem(1, u"Boa rossa"_s, EquipmentType::other, {});
    item.customTypeName = u"Boa"_s;
    return item;
}

QImage picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, {}, {}, {}); // without what is behind it
    return image;
}

/// The main window with an item of a type of one's own in its detail pane.
struct WindowWithTypes
{
    WindowWithTypes()
        : fixture(QList<Equipment>{buoy()})
    {
        fixture.types.addType(ownType());
        window = std::make_unique<MainWindow>(fixture, fixture.equipment, fixture.directories.windowStateFile());
        window->resize(1280, 800);
        activate(*window);
        window->content().setSelectedEquipment(fixture.equipment.equipment().first());
        settle();
    }

    QStringList sidebar() const
    {
        const auto* model = window->findChild<SidebarView*>()->model();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, 0).data().toString());
        return texts;
    }

    QStringList filterMenu() const
    {
        auto* menu = window->findChild<FilterMenu*>();
        Q_EMIT menu->aboutToShow();
        QStringList texts;
        for (const QAction* action : menu->actions())
            texts.append(action->text());
        return texts;
    }

    EquipmentRow row() const { return window->findChild<EquipmentTableView*>()->equipmentModel().row(0); }
    QString rowText() const { return window->findChild<EquipmentTableView*>()->model()->index(0, 0).data().toString(); }

    EquipmentDetailView& detail() const { return *window->findChild<EquipmentDetailView*>(); }
    QString detailType() const { return detail().findChild<QLabel*>(u"detailType"_s)->text(); }
    QImage detailPicture() const { return picture(*detail().findChild<IconTile*>()); }

    ShellFixture fixture;
    std::unique_ptr<MainWindow> window;
};

QImage pictureOf(const WindowWithTypes& s, const TypeAppearance& appearance)
{
    const int side = s.detail().findChild<IconTile*>()->width();
    IconTile tile(side);
    tile.setIcon(typeIcon(appearance.icon, appearance.color), appearance.color);
    tile.resize(side, side);
    return picture(tile);
}

const TypeAppearance ownLook{u"dive.reel"_s, NamedColor::teal};
const TypeAppearance fallback{u"questionmark.circle.fill"_s, NamedColor::secondary};

} // namespace

class tst_TypesInTheWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyTheme(*qApp, Scheme::Light); }

    void anOwnTypeIsShownEverywhere()
    {
        const WindowWithTypes s;
        QVERIFY(s.sidebar().contains(u"Boa"_s));
        QVERIFY(s.filterMenu().contains(u"Boa"_s));
        QCOMPARE(s.row().appearance, ownLook);
        QCOMPARE(s.rowText(), u"Boa rossa\nBoa"_s);
        QCOMPARE(s.detailType(), u"Boa"_s);
        QCOMPARE(s.detailPicture(), pictureOf(s, ownLook));
    }

    void everyScreenFallsBackAtOnce_data()
    {
        using Change = std::function<void(EquipmentTypeViewModel&)>;
        QTest::addColumn<Change>("change");
        QTest::newRow("deleted") << Change([](auto& types) { types.deleteType(ownType()); });
        QTest::newRow("renamed") << Change([](auto& types) { types.updateType(ownType(u"Pallone"_s)); });
        QTest::newRow("deactivated") << Change([](auto& types) {
            EquipmentTypeModel inactive = ownType();
            inactive.isActive = false;
            types.updateType(inactive);
        });
        QTest::newRow("reset") << Change([](auto& types) { types.resetToDefaults(); });
    }
    void everyScreenFallsBackAtOnce()
    {
        QFETCH(std::function<void(EquipmentTypeViewModel&)>, change);
        WindowWithTypes s;
        const QList<Equipment> before = s.fixture.equipment.equipment();
        const auto stored = s.fixture.preferences.data(StorageManager::equipmentKey);
        change(s.fixture.types);
        settle();
        QVERIFY(!s.sidebar().contains(u"Boa"_s));
        QVERIFY(!s.filterMenu().contains(u"Boa"_s));
        QCOMPARE(s.row().appearance, fallback);
        QCOMPARE(s.rowText(), u"Boa rossa\nBoa"_s);
        QCOMPARE(s.detailType(), u"Boa"_s);
        QCOMPARE(s.detailPicture(), pictureOf(s, fallback));
        QCOMPARE(s.fixture.equipment.equipment(), before);
        QCOMPARE(s.fixture.preferences.data(StorageManager::equipmentKey), stored);

        EditEquipmentView form(s.fixture.equipment, s.fixture.types, s.fixture.almanac, before.first(), s.window.get());
        form.open();
        QCOMPARE(usable<QComboBox>(form, "type").currentText(), u"Boa"_s);
        QVERIFY(!isShown(form, "interval"));
    }

    void anOpenFormKeepsTheNameOfADeletedType()
    {
        WindowWithTypes s;
        EditEquipmentView form(s.fixture.equipment, s.fixture.types, s.fixture.almanac,
                               s.fixture.equipment.equipment().first(), s.window.get());
        form.open();
        QVERIFY(isShown(form, "interval"));
        s.fixture.types.deleteType(ownType());
        settle();
        QCOMPARE(usable<QComboBox>(form, "type").currentText(), u"Boa"_s);
        QVERIFY(!isShown(form, "interval"));
        click(form, "primary");
        QCOMPARE(s.fixture.equipment.equipment().first().customTypeName, std::optional(u"Boa"_s));
    }

    void aNewLookIsShownAtOnce()
    {
        WindowWithTypes s;
        EquipmentTypeModel changed = ownType();
        changed.icon = u"wrench.fill"_s;
        changed.color = u"pink"_s;
        s.fixture.types.updateType(changed);
        settle();
        QCOMPARE(s.row().appearance, appearanceOf(changed));
        QCOMPARE(s.detailPicture(), pictureOf(s, appearanceOf(changed)));
    }

    void sheetOverSheet()
    {
        WindowWithTypes s;
        s.window->resize(1000, 700);
        QWidget* const opener = s.window->findChild<EquipmentTableView*>();
        opener->setFocus();
        auto* management = new EquipmentTypeManagementView(s.fixture.types, s.fixture.ids, s.window.get());
        management->setAttribute(Qt::WA_DeleteOnClose);
        management->open();
        usable<QAbstractButton>(*management, "addType").setFocus();
        click(*management, "addType");
        auto* form = management->findChild<EquipmentTypeFormView*>();
        QVERIFY(form && form->isVisible() && form->isModal());
        for (const QWidget* sheet : {static_cast<QWidget*>(management), static_cast<QWidget*>(form)})
            QVERIFY(s.window->geometry().contains(sheet->geometry()));
        QTest::keyClick(&usable<QLineEdit>(*form, "name"), Qt::Key_Escape);
        QVERIFY(management->isVisible());
        QCOMPARE(management->focusWidget()->objectName(), u"addType"_s);
        QTest::keyClick(management, Qt::Key_Escape);
        QVERIFY(!management->isVisible());
        QCOMPARE(s.window->focusWidget(), opener);
    }

    void closingTheWindowWithSheetsOpenIsSafe()
    {
        WindowWithTypes s;
        auto* management = new EquipmentTypeManagementView(s.fixture.types, s.fixture.ids, s.window.get());
        management->open();
        click(*management, "addType");
        s.window.reset();
        QCOMPARE(s.fixture.types.types().size(), 17);
    }
};

ABISSORA_TEST(tst_TypesInTheWindow);

#include "tst_TypesInTheWindow.moc"

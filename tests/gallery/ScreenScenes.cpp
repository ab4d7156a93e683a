// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EditEquipmentView.h"
#include "EquipmentFormView.h"
#include "MainWindow.h"
#include "MaintenanceFormView.h"
#include "Scenes.h"
#include "ScreenFixture.h"
#include "SidebarView.h"

#include <QApplication>

namespace abissora::gallery {

namespace {

using namespace std::chrono;

constexpr QSize windowSize(1280, 800);
const Instant today = sys_days{2026y / November / 21} + 9h;

Equipment item(int number, const QString& name, EquipmentType type, const QString& brand, const QString& model,
               sys_days nextService)
{
    Equipment item = test::makeItem(number, name, type, nextService + 12h);
    item.brand = brand;
    item.model = model;
    item.purchaseDate = sys_days{2025y / November / 21} + 9h;
    item.lastServiceDate = sys_days{2026y / October / 21} + 9h;
    return item;
}

QList<Equipment> items()
{
    QList<Equipment> items{
        item(1, QStringLiteral("Erogatore Apeks XTX50"), EquipmentType::regulator, QStringLiteral("Apeks"),
             QStringLiteral("XTX50"), 2027y / November / 21),
        item(2, QStringLiteral("GAV Scubapro Hydros"), EquipmentType::bcd, QStringLiteral("Scubapro"),
             QStringLiteral("Hydros Pro"), 2026y / December / 21),
        item(3, QStringLiteral("Computer Suunto EON Core"), EquipmentType::computer, QStringLiteral("Suunto"),
             QStringLiteral("EON Core"), 2026y / December / 5),
        item(4, QStringLiteral("Bombola 15L acciaio"), EquipmentType::cylinder, QStringLiteral("Faber"),
             QStringLiteral("15L 232 bar"), 2026y / November / 2),
        item(5, QStringLiteral("Torcia principale"), EquipmentType::other, QStringLiteral("Big Blue"),
             QStringLiteral("VTL8000P"), 2027y / March / 14),
        item(6, QStringLiteral("Muta stagna trilaminato"), EquipmentType::drysuit, QStringLiteral("Santi"),
             QStringLiteral("Motion+"), 2027y / June / 2),
        item(7, QStringLiteral("Maschera di riserva"), EquipmentType::mask, QStringLiteral("Cressi"),
             QStringLiteral("F1"), 2027y / September / 30),
    };
    items[4].customTypeName = QStringLiteral("Torcia");
    items[6].isActive = false;
    Maintenance battery;
    battery.id = test::SequentialIds::at(1);
    battery.date = sys_days{2026y / October / 21} + 9h;
    battery.description = QStringLiteral("Sostituzione batteria e prova stagna");
    battery.performedBy = QStringLiteral("Blu Service");
    battery.cost = 45;
    battery.nextServiceDate = sys_days{2026y / December / 6} + 9h;
    battery.isCompleted = true;
    Maintenance repair = battery;
    repair.id = test::SequentialIds::at(2);
    repair.date = sys_days{2025y / November / 3} + 9h;
    repair.type = MaintenanceType::repair;
    repair.description = QStringLiteral("Cinturino rotto");
    repair.isCompleted = false;
    repair.cost = 0;
    items[2].serialNumber = QStringLiteral("SU456789");
    items[2].notes = QStringLiteral("Computer subacqueo con display a colori.");
    items[2].maintenanceHistory = {repair, battery};
    return items;
}

/// The state that a window shows is made before the window and outlives it.
struct Holder
{
    explicit Holder(const QList<Equipment>& stored)
        : fixture(stored)
    {
        fixture.clock.set(today);
    }

    test::ScreenFixture fixture;
};

class Window final : private Holder, public MainWindow
{
public:
    using Setup = std::function<void(test::ScreenFixture&, MainWindow&)>;

    Window(const QList<Equipment>& stored, const Setup& setup, QSize size)
        : Holder(stored)
        , MainWindow(fixture.context, fixture.directories.windowStateFile())
    {
        resize(size);
        setup(fixture, *this);
    }
};

class MaintenanceForm final : private Holder, public MaintenanceFormView
{
public:
    explicit MaintenanceForm(const QList<Equipment>& stored)
        : Holder(stored)
        , MaintenanceFormView(fixture.context, stored.at(2).id, std::nullopt)
    {}
};

Scene window(const QString& name, const Window::Setup& setup, const QList<Equipment>& stored = items(),
             QSize size = windowSize)
{
    return {name, [=]() -> std::unique_ptr<QWidget> { return std::make_unique<Window>(stored, setup, size); }};
}

void selectInSidebar(MainWindow& window, const QString& tag)
{
    window.findChild<SidebarView*>()->setSelectedSidebarItem(tag);
}

/// Keeps a sheet's state alive as its child.
class KeptState final : public QObject
{
public:
    explicit KeptState(const QList<Equipment>& stored)
        : holder(stored)
    {}

    Holder holder;
};

/// A form over the items; `make` is given the fixture.
template <typename Make>
Scene form(const QString& name, Make make)
{
    return {name, [make] {
                auto state = std::make_unique<KeptState>(items());
                std::unique_ptr<QWidget> sheet = make(state->holder.fixture);
                state.release()->setParent(sheet.get());
                return sheet;
            }};
}

} // namespace

QList<Scene> screenScenes()
{
    return {
        window(QStringLiteral("list"),
               [](test::ScreenFixture& f, MainWindow& w) {
                   w.content().setSelectedEquipment(f.equipment.equipment().at(2));
               }),
        window(QStringLiteral("list-filtered"),
               [](test::ScreenFixture&, MainWindow& w) { selectInSidebar(w, QStringLiteral("type_GAV")); }),
        window(QStringLiteral("list-nothing-found"),
               [](test::ScreenFixture& f, MainWindow&) { f.equipment.setSearchText(QStringLiteral("pinne rosse")); }),
        window(QStringLiteral("list-empty"), [](test::ScreenFixture&, MainWindow&) {}, {}),
        window(
            QStringLiteral("list-smallest"), [](test::ScreenFixture&, MainWindow&) {}, items(), QSize(1000, 700)),
        window(
            QStringLiteral("detail-smallest"),
            [](test::ScreenFixture& f, MainWindow& w) {
                w.content().setSelectedEquipment(f.equipment.equipment().at(0));
            },
            items(), QSize(1000, 700)),
        {QStringLiteral("maintenance-form"), [] { return std::make_unique<MaintenanceForm>(items()); }},
        form(QStringLiteral("equipment-form"),
             [](test::ScreenFixture& f) { return std::make_unique<EquipmentFormView>(f.context, nullptr); }),
        form(QStringLiteral("equipment-form-edit"),
             [](test::ScreenFixture& f) {
                 return std::make_unique<EditEquipmentView>(f.context, f.equipment.equipment().first(), nullptr);
             }),
        window(QStringLiteral("detail-no-history"),
               [](test::ScreenFixture& f, MainWindow& w) {
                   w.content().setSelectedEquipment(f.equipment.equipment().at(1));
               }),
        window(
            QStringLiteral("detail-whole"),
            [](test::ScreenFixture& f, MainWindow& w) {
                w.content().setSelectedEquipment(f.equipment.equipment().at(2));
            },
            items(), QSize(1280, 1150)),
    };
}

} // namespace abissora::gallery

// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EditEquipmentView.h"
#include "EquipmentFormView.h"
#include "MaintenanceFormView.h"
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

class MaintenanceForm final : private Holder, public MaintenanceFormView
{
public:
    explicit MaintenanceForm(const QList<Equipment>& stored)
        : Holder(stored)
        , MaintenanceFormView(fixture.context, stored.at(2).id, std::nullopt)
    {}
};

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

// SPDX-License-Identifier: MIT
#include "ContentView.h"
#include "EquipmentFormView.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "ScreenStage.h"

namespace abissora::gallery {

namespace {

class MaintenanceForm final : private Holder, public MaintenanceFormView
{
public:
    explicit MaintenanceForm(const QList<Equipment>& stored)
        : Holder(stored)
        , MaintenanceFormView(fixture.draft(stored.at(2).id), fixture.opener)
    {}
};

} // namespace

QList<Scene> screenScenes()
{
    return {
        window(u"list"_s, [](test::RegisterFixture& f,
                             MainWindow& w) { w.content().setSelectedEquipment(f.equipment.equipment().at(2)); }),
        window(u"list-filtered"_s, [](test::RegisterFixture&, MainWindow& w) { selectInSidebar(w, u"type_GAV"_s); }),
        window(u"list-nothing-found"_s,
               [](test::RegisterFixture& f, MainWindow&) { f.equipment.setSearchText(u"pinne rosse"_s); }),
        window(u"list-empty"_s, [](test::RegisterFixture&, MainWindow&) {}, {}),
        window(
            u"list-smallest"_s, [](test::RegisterFixture&, MainWindow&) {}, items(), QSize(1000, 700)),
        window(
            u"detail-smallest"_s,
            [](test::RegisterFixture& f, MainWindow& w) {
                w.content().setSelectedEquipment(f.equipment.equipment().at(0));
            },
            items(), QSize(1000, 700)),
        {u"maintenance-form"_s, [] { return std::make_unique<MaintenanceForm>(items()); }},
        form(u"equipment-form"_s,
             [](test::RegisterFixture& f) {
                 return std::make_unique<EquipmentFormView>(f.equipment, f.types, f.almanac, f.ids);
             }),
        form(u"equipment-form-edit"_s,
             [](test::RegisterFixture& f) {
                 return std::make_unique<EditEquipmentView>(f.equipment, f.types, f.almanac,
                                                            f.equipment.equipment().first());
             }),
        window(u"detail-no-history"_s,
               [](test::RegisterFixture& f, MainWindow& w) {
                   w.content().setSelectedEquipment(f.equipment.equipment().at(1));
               }),
        window(
            u"detail-whole"_s,
            [](test::RegisterFixture& f, MainWindow& w) {
                w.content().setSelectedEquipment(f.equipment.equipment().at(2));
            },
            items(), QSize(1280, 1150)),
    };
}

} // namespace abissora::gallery

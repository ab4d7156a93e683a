// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Buttons.h"
#include "ContentView.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "ScreenStage.h"

#include <QLineEdit>

namespace abissora::gallery {

namespace {

using Make = std::function<std::unique_ptr<QWidget>(test::RegisterFixture&)>;

Scene scene(const QString& name, const QList<Equipment>& stored, const Make& make)
{
    return {name, [=] {
                auto state = std::make_unique<KeptState>(stored);
                std::unique_ptr<QWidget> screen = make(state->holder.fixture);
                state.release()->setParent(screen.get());
                return screen;
            }};
}

/// The detail screen of an item, in a pane's width.
Scene detail(const QString& name, const Equipment& item, int height = 900,
             const std::function<void(test::RegisterFixture&, Equipment&)>& prepare = {})
{
    return scene(name, {item}, [=](test::RegisterFixture& f) {
        Equipment shown = f.equipment.equipment().first();
        if (prepare) {
            prepare(f, shown);
            f.equipment.updateEquipment(shown);
        }
        auto view = std::make_unique<EquipmentDetailView>(f.detail(shown), f.opener);
        view->resize(385, height);
        return view;
    });
}

/// Holds the screen that an alert belongs to.
class KeptScreen final : public QObject
{
public:
    explicit KeptScreen(std::unique_ptr<QWidget> screen)
        : m_screen(std::move(screen))
    {}

private:
    std::unique_ptr<QWidget> m_screen;
};

/// The alert that the screen shows, by itself.
std::unique_ptr<QWidget> alertOf(std::unique_ptr<QWidget> screen)
{
    std::unique_ptr<QWidget> alert(screen->findChild<Alert*>());
    alert->hide();
    alert->setParent(nullptr, alert->windowFlags());
    std::make_unique<KeptScreen>(std::move(screen)).release()->setParent(alert.get());
    return alert;
}

Equipment dueIn(int days)
{
    Equipment item = items().constFirst();
    item.nextServiceDate = today + days * 24h;
    return item;
}

Equipment longTexts()
{
    Equipment item = items().at(2);
    item.name = u"Computer subacqueo da polso con trasmettitore e bussola Donaudampfschifffahrtskapitän"_s;
    item.customTypeName = u"Computer subacqueo con integrazione dell'aria"_s;
    item.brand = u"Una marca dal nome piuttosto lungo"_s;
    item.serialNumber = u"SN-0123456789-0123456789-0123456789-0123456789-0123456789"_s;
    item.notes = u"Prima riga delle note.\n\nhttps://abissora.example/una/pagina/dal/nome/molto/lungo/senza/"
                 "spazi\n"_s +
                 u"Le note possono essere lunghe quanto si vuole. "_s.repeated(6);
    for (Maintenance& record : item.maintenanceHistory) {
        record.description = u"Sostituzione della batteria, prova stagna, controllo del trasmettitore e "
                             "aggiornamento del programma interno"_s;
        record.performedBy = u"Centro Assistenza Autorizzato Blu Service di Santa Margherita Ligure"_s;
        record.cost = 1234567.89;
    }
    return item;
}

void longHistory(test::RegisterFixture& f, Equipment& item)
{
    const QList<Maintenance> two = item.maintenanceHistory;
    for (int i = 0; i < 6; ++i) {
        Maintenance record = two.at(i % 2);
        record.id = test::SequentialIds::at(100 + i);
        record.type = allCases<MaintenanceType>()[static_cast<std::size_t>(i) % allCases<MaintenanceType>().size()];
        record.date -= i * 24h * 200;
        if (i % 3 != 2)
            record.receiptFileName = f.storedDocument(u"scontrino.pdf"_s);
        if (i % 2 == 0)
            record.certificateFileName = f.storedDocument(u"certificato.pdf"_s);
        item.maintenanceHistory.append(record);
    }
}

Equipment unknownType()
{
    Equipment item = items().at(4);
    item.customTypeName = u"Faro antico"_s;
    return item;
}

QList<Scene> alertScenes()
{
    return {
        scene(u"alert-delete-item"_s, items(),
              [](test::RegisterFixture& f) {
                  auto view = std::make_unique<EquipmentDetailView>(f.detail(f.equipment.equipment().at(2)), f.opener);
                  view->confirmDeletion();
                  return alertOf(std::move(view));
              }),
        scene(u"alert-delete-record"_s, items(),
              [](test::RegisterFixture& f) {
                  const Equipment item = f.equipment.equipment().at(2);
                  auto view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
                  view->confirmDeleteMaintenance(item.maintenanceHistory.last().id);
                  return alertOf(std::move(view));
              }),
        scene(u"alert-delete-from-list"_s, {longTexts()},
              [](test::RegisterFixture& f) {
                  auto view = std::make_unique<EquipmentListView>(f.equipment, f.types, f.almanac, f.console, f.ids);
                  view->confirmDeletion(f.equipment.equipment().first());
                  return alertOf(std::move(view));
              }),
        scene(u"alert-document-not-opened"_s, items(),
              [](test::RegisterFixture& f) {
                  Equipment item = f.equipment.equipment().at(2);
                  item.maintenanceHistory.last().receiptFileName = f.storedDocument(u"a.pdf"_s);
                  f.opener.succeed(false);
                  auto view = std::make_unique<EquipmentDetailView>(f.detail(item), f.opener);
                  view->resize(385, 900);
                  view->show(); // only rows in sight exist
                  test::settle();
                  test::click(*view, u"openReceipt"_s);
                  return alertOf(std::move(view));
              }),
        scene(u"alert-validation"_s, items(),
              [](test::RegisterFixture& f) {
                  auto view = std::make_unique<EquipmentFormView>(f.equipment, f.types, f.almanac, f.ids);
                  view->primaryButton()->click();
                  return alertOf(std::move(view));
              }),
    };
}

} // namespace

QList<Scene> detailScenes()
{
    Equipment inactive = items().constLast();
    inactive.notes = u"In prestito."_s;
    return QList<Scene>{
               detail(u"detail-overdue"_s, items().at(3)),
               detail(u"detail-30-days"_s, dueIn(30)),
               detail(u"detail-31-days"_s, dueIn(31)),
               detail(u"detail-inactive"_s, inactive),
               detail(u"detail-unknown-type"_s, unknownType()),
               detail(u"detail-long-history"_s, items().at(2), 1700, longHistory),
               detail(u"detail-long-texts"_s, longTexts(), 1500),
               scene(u"maintenance-form-edit"_s, items(),
                     [](test::RegisterFixture& f) {
                         Equipment item = f.equipment.equipment().at(2);
                         Maintenance& record = item.maintenanceHistory.last();
                         record.receiptFileName = f.storedDocument(u"scontrino.pdf"_s);
                         record.notes = u"Garanzia di due anni."_s;
                         f.equipment.updateEquipment(item);
                         return std::make_unique<MaintenanceFormView>(f.draft(item.id, record), f.opener);
                     }),
               scene(u"maintenance-form-invalid"_s, items(),
                     [](test::RegisterFixture& f) {
                         auto form = std::make_unique<MaintenanceFormView>(f.draft(f.equipment.equipment().first().id),
                                                                           f.opener);
                         form->findChild<QLineEdit*>(u"date"_s)->setText(u"31/02/2026"_s);
                         form->findChild<QLineEdit*>(u"description"_s)->setText(u"Prova"_s);
                         form->findChild<QLineEdit*>(u"cost"_s)->setText(u"12.5.0"_s);
                         form->findChild<QLineEdit*>(u"nextServiceDate"_s)->clear();
                         form->save();
                         return form;
                     }),
               window(
                   u"list-filtered-smallest"_s,
                   [](test::RegisterFixture& f, MainWindow& w) {
                       selectInSidebar(w, u"type_Computer Subacqueo"_s);
                       w.content().setSelectedEquipment(f.equipment.equipment().at(2));
                   },
                   items(), QSize(1000, 700)),
           } +
           alertScenes();
}

} // namespace abissora::gallery

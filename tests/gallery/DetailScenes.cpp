// SPDX-License-Identifier: MIT
#include "Alert.h"
#include "Buttons.h"
#include "ContentView.h"
#include "EquipmentDetailView.h"
#include "EquipmentFormView.h"
#include "EquipmentListView.h"
#include "MaintenanceFormView.h"
#include "ScreenStage.h"

#include <QFile>
#include <QLineEdit>

namespace abissora::gallery {

namespace {

using Make = std::function<std::unique_ptr<QWidget>(test::ScreenFixture&)>;

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
             const std::function<void(test::ScreenFixture&, Equipment&)>& prepare = {})
{
    return scene(name, {item}, [=](test::ScreenFixture& f) {
        Equipment shown = f.equipment.equipment().first();
        if (prepare) {
            prepare(f, shown);
            f.equipment.updateEquipment(shown);
        }
        auto view = std::make_unique<EquipmentDetailView>(f.context, shown);
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

std::optional<QString> storedDocument(test::ScreenFixture& f, const QString& name)
{
    QFile file(f.folder.filePath(name));
    return file.open(QIODevice::WriteOnly) && file.write("%PDF-1.4") > 0 ? f.documents.store(file.fileName())
                                                                         : std::nullopt;
}

Equipment dueIn(int days)
{
    Equipment item = items().first();
    item.nextServiceDate = today + days * 24h;
    return item;
}

Equipment longTexts()
{
    Equipment item = items().at(2);
    item.name = QStringLiteral("Computer subacqueo da polso con trasmettitore e bussola Donaudampfschifffahrtskapitän");
    item.customTypeName = QStringLiteral("Computer subacqueo con integrazione dell'aria");
    item.brand = QStringLiteral("Una marca dal nome piuttosto lungo");
    item.serialNumber = QStringLiteral("SN-0123456789-0123456789-0123456789-0123456789-0123456789");
    item.notes =
        QStringLiteral("Prima riga delle note.\n\nhttps://abissora.example/una/pagina/dal/nome/molto/lungo/senza/"
                       "spazi\n") +
        QStringLiteral("Le note possono essere lunghe quanto si vuole. ").repeated(6);
    for (Maintenance& record : item.maintenanceHistory) {
        record.description = QStringLiteral("Sostituzione della batteria, prova stagna, controllo del trasmettitore e "
                                            "aggiornamento del programma interno");
        record.performedBy = QStringLiteral("Centro Assistenza Autorizzato Blu Service di Santa Margherita Ligure");
        record.cost = 1234567.89;
    }
    return item;
}

void longHistory(test::ScreenFixture& f, Equipment& item)
{
    const QList<Maintenance> two = item.maintenanceHistory;
    for (int i = 0; i < 6; ++i) {
        Maintenance record = two.at(i % 2);
        record.id = test::SequentialIds::at(100 + i);
        record.type = allCases<MaintenanceType>()[static_cast<std::size_t>(i) % allCases<MaintenanceType>().size()];
        record.date -= i * 24h * 200;
        if (i % 3 != 2)
            record.receiptFileName = storedDocument(f, QStringLiteral("scontrino.pdf"));
        if (i % 2 == 0)
            record.certificateFileName = storedDocument(f, QStringLiteral("certificato.pdf"));
        item.maintenanceHistory.append(record);
    }
}

Equipment unknownType()
{
    Equipment item = items().at(4);
    item.customTypeName = QStringLiteral("Faro antico");
    return item;
}

QList<Scene> alertScenes()
{
    return {
        scene(QStringLiteral("alert-delete-item"), items(),
              [](test::ScreenFixture& f) {
                  auto view = std::make_unique<EquipmentDetailView>(f.context, f.equipment.equipment().at(2));
                  view->confirmDeletion();
                  return alertOf(std::move(view));
              }),
        scene(QStringLiteral("alert-delete-record"), items(),
              [](test::ScreenFixture& f) {
                  const Equipment item = f.equipment.equipment().at(2);
                  auto view = std::make_unique<EquipmentDetailView>(f.context, item);
                  view->confirmDeleteMaintenance(item.maintenanceHistory.last().id);
                  return alertOf(std::move(view));
              }),
        scene(QStringLiteral("alert-delete-from-list"), {longTexts()},
              [](test::ScreenFixture& f) {
                  auto view = std::make_unique<EquipmentListView>(f.context);
                  view->confirmDeletion(f.equipment.equipment().first());
                  return alertOf(std::move(view));
              }),
        scene(QStringLiteral("alert-document-not-opened"), items(),
              [](test::ScreenFixture& f) {
                  Equipment item = f.equipment.equipment().at(2);
                  item.maintenanceHistory.last().receiptFileName = storedDocument(f, QStringLiteral("a.pdf"));
                  f.opener.succeed(false);
                  auto view = std::make_unique<EquipmentDetailView>(f.context, item);
                  view->findChild<QAbstractButton*>(QStringLiteral("openReceipt"))->click();
                  return alertOf(std::move(view));
              }),
        scene(QStringLiteral("alert-validation"), items(),
              [](test::ScreenFixture& f) {
                  auto view = std::make_unique<EquipmentFormView>(f.context, nullptr);
                  view->primaryButton()->click();
                  return alertOf(std::move(view));
              }),
    };
}

} // namespace

QList<Scene> detailScenes()
{
    Equipment inactive = items().last();
    inactive.notes = QStringLiteral("In prestito.");
    return QList<Scene>{
               detail(QStringLiteral("detail-overdue"), items().at(3)),
               detail(QStringLiteral("detail-30-days"), dueIn(30)),
               detail(QStringLiteral("detail-31-days"), dueIn(31)),
               detail(QStringLiteral("detail-inactive"), inactive),
               detail(QStringLiteral("detail-unknown-type"), unknownType()),
               detail(QStringLiteral("detail-long-history"), items().at(2), 1700, longHistory),
               detail(QStringLiteral("detail-long-texts"), longTexts(), 1500),
               scene(QStringLiteral("maintenance-form-edit"), items(),
                     [](test::ScreenFixture& f) {
                         Equipment item = f.equipment.equipment().at(2);
                         Maintenance& record = item.maintenanceHistory.last();
                         record.receiptFileName = storedDocument(f, QStringLiteral("scontrino.pdf"));
                         record.notes = QStringLiteral("Garanzia di due anni.");
                         f.equipment.updateEquipment(item);
                         return std::make_unique<MaintenanceFormView>(f.context, item.id, record);
                     }),
               scene(QStringLiteral("maintenance-form-invalid"), items(),
                     [](test::ScreenFixture& f) {
                         auto form = std::make_unique<MaintenanceFormView>(
                             f.context, f.equipment.equipment().first().id, std::nullopt);
                         form->findChild<QLineEdit*>(QStringLiteral("date"))->setText(QStringLiteral("31/02/2026"));
                         form->findChild<QLineEdit*>(QStringLiteral("description"))->setText(QStringLiteral("Prova"));
                         form->findChild<QLineEdit*>(QStringLiteral("cost"))->setText(QStringLiteral("12.5.0"));
                         form->findChild<QLineEdit*>(QStringLiteral("nextServiceDate"))->clear();
                         form->save();
                         return form;
                     }),
               window(
                   QStringLiteral("list-filtered-smallest"),
                   [](test::ScreenFixture& f, MainWindow& w) {
                       selectInSidebar(w, QStringLiteral("type_Computer Subacqueo"));
                       w.content().setSelectedEquipment(f.equipment.equipment().at(2));
                   },
                   items(), QSize(1000, 700)),
           } +
           alertScenes();
}

} // namespace abissora::gallery

// SPDX-License-Identifier: MIT
#include "EquipmentDetailView.h"

#include "Alert.h"
#include "Buttons.h"
#include "DetailActions.h"
#include "DetailHeader.h"
#include "EditEquipmentView.h"
#include "Labels.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "MaintenanceHistory.h"
#include "MaintenanceRecords.h"
#include "Metrics.h"
#include "ScrollPane.h"
#include "SelectableText.h"
#include "SymbolIcon.h"
#include "TechnicalDetails.h"
#include "ViewSheet.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollBar>

namespace abissora {

namespace {

constexpr int sideMargin = 18;
constexpr int leastWidth = 300;

} // namespace

EquipmentDetailView::EquipmentDetailView(const AppContext& context, const Equipment& equipment, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_equipment(equipment)
    , m_header(new DetailHeader)
    , m_technical(new TechnicalDetails)
    , m_notes(new SelectableText)
    , m_actions(new DetailActions)
    , m_history(new MaintenanceHistory(context))
    , m_body(makeBody())
{
    setObjectName(u"equipmentDetail"_s);
    setMinimumWidth(leastWidth);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeTitleBar());
    layout->addWidget(m_body, 1);
    connectParts();
    redraw();
}

ViewSheet* EquipmentDetailView::makeSheet(const AppContext& context, const Equipment& equipment, QWidget* parent)
{
    auto* view = new EquipmentDetailView(context, equipment);
    auto* sheet = new ViewSheet({.view = view,
                                 .title = u"Dettagli Attrezzatura"_s,
                                 .margins = {metrics::spaceXS, metrics::spaceS, metrics::spaceXS, metrics::spaceXS},
                                 .preferredSize = {750, 650},
                                 .firstFocus = view->findChild<QWidget*>(u"editEquipment"_s)},
                                parent);
    connect(view, &EquipmentDetailView::closed, sheet, &QDialog::reject);
    return sheet;
}

QWidget* EquipmentDetailView::makeTitleBar()
{
    auto* close = new IconButton(symbolIcon(u"xmark"_s), u"Chiudi"_s);
    close->setObjectName(u"closeDetail"_s);
    connect(close, &QAbstractButton::clicked, this, &EquipmentDetailView::closed);
    auto* bar = new QWidget;
    auto* layout = new QHBoxLayout(bar);
    layout->setContentsMargins(sideMargin, metrics::spaceXS, sideMargin - metrics::spaceXS, metrics::spaceXS);
    layout->addWidget(new InkLabel(TextStyle::Headline, &Tokens::text, u"Dettagli Attrezzatura"_s), 1);
    layout->addWidget(close);
    return bar;
}

QScrollArea* EquipmentDetailView::makeBody()
{
    m_notes->setObjectName(u"notes"_s);
    m_notes->setAccessibleName(u"Note"_s);
    auto* notes = new GroupBox(u"Note"_s, u"note.text"_s);
    notes->content()->addWidget(m_notes);

    auto* area = new ScrollPane;
    auto* layout = new QVBoxLayout(area->widget());
    layout->setContentsMargins(sideMargin, metrics::spaceXS, sideMargin, metrics::spaceL);
    layout->setSpacing(metrics::spaceM);
    for (QWidget* part : std::initializer_list<QWidget*>{m_header, m_technical, notes, m_actions, m_history})
        layout->addWidget(part);
    layout->addStretch(1); // takes all the spare height: no card grows

    // The scroll bar stands in the margin: the cards keep their width when it comes and goes.
    const QScrollBar* const bar = area->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, layout, [bar, layout](int, int maximum) {
        QMargins margins = layout->contentsMargins();
        margins.setRight(maximum > 0 ? std::max(0, sideMargin - bar->sizeHint().width()) : sideMargin);
        layout->setContentsMargins(margins);
    });
    return area;
}

void EquipmentDetailView::connectParts()
{
    connect(&m_context.equipment, &EquipmentViewModel::equipmentChanged, this, &EquipmentDetailView::syncFromModel);
    connect(&m_context.types, &EquipmentTypeViewModel::typesChanged, this, &EquipmentDetailView::redraw);

    connect(m_actions, &DetailActions::editClicked, this, &EquipmentDetailView::openEditForm);
    connect(m_actions, &DetailActions::addMaintenanceClicked, this,
            qOverload<>(&EquipmentDetailView::openMaintenanceForm));
    connect(m_actions, &DetailActions::toggleActiveClicked, this, &EquipmentDetailView::toggleActive);
    connect(m_actions, &DetailActions::deleteClicked, this, &EquipmentDetailView::confirmDeletion);

    connect(m_history, &MaintenanceHistory::updated, this, &EquipmentDetailView::storeMaintenance);
    connect(m_history, &MaintenanceHistory::editRequested, this, &EquipmentDetailView::startEditingMaintenance);
    connect(m_history, &MaintenanceHistory::deleteRequested, this, &EquipmentDetailView::confirmDeleteMaintenance);
}

void EquipmentDetailView::setEquipment(const Equipment& equipment)
{
    if (equipment.id != m_equipment.id)
        m_body->verticalScrollBar()->setValue(0);
    m_equipment = equipment;
    syncFromModel();
}

void EquipmentDetailView::syncFromModel()
{
    const QList<Equipment>& items = m_context.equipment.equipment();
    const auto stored =
        std::find_if(items.begin(), items.end(), [this](const Equipment& item) { return item.id == m_equipment.id; });
    if (stored != items.end())
        m_equipment = *stored;
    redraw();
}

void EquipmentDetailView::redraw()
{
    const DetailContent content =
        DetailContent::of(m_equipment, m_context.types, m_context.dates, m_context.calendar, m_context.clock.now());
    m_header->setContent(content);
    m_technical->setLines(content.technicalDetails);
    m_notes->setText(content.notes);
    m_actions->setActive(content.isActive);
    if (m_equipment.maintenanceHistory.isEmpty() && m_history->isAncestorOf(window()->focusWidget()))
        m_actions->focusAddMaintenance();
    m_history->setHistory(m_equipment.maintenanceHistory);
}

void EquipmentDetailView::openEditForm()
{
    auto* form = new EditEquipmentView(m_context, m_equipment, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &EditEquipmentView::saved, this, [this](const Equipment& edited) { m_equipment = edited; });
    connect(form, &QDialog::finished, this, &EquipmentDetailView::syncFromModel);
    form->open();
}

void EquipmentDetailView::openMaintenanceForm()
{
    openMaintenanceForm(std::nullopt);
}

void EquipmentDetailView::startEditingMaintenance(const QUuid& id)
{
    openMaintenanceForm(recordOf(m_equipment.maintenanceHistory, id));
}

void EquipmentDetailView::openMaintenanceForm(const std::optional<Maintenance>& editing)
{
    auto* form = new MaintenanceFormView(m_context, m_equipment.id, editing, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &QDialog::finished, this, &EquipmentDetailView::syncFromModel);
    form->open();
}

void EquipmentDetailView::toggleActive()
{
    m_equipment.isActive = !m_equipment.isActive;
    m_context.equipment.updateEquipment(m_equipment);
    redraw();
}

void EquipmentDetailView::storeMaintenance(const Maintenance& maintenance)
{
    replaceRecord(m_equipment.maintenanceHistory, maintenance);
    m_context.equipment.updateEquipment(m_equipment);
    redraw();
}

void EquipmentDetailView::confirmDeleteMaintenance(const QUuid& id)
{
    m_maintenanceToDelete = recordOf(m_equipment.maintenanceHistory, id);
    const auto* alert = Alert::ask(this, u"Elimina Manutenzione"_s, maintenanceDeleteAlertMessage(),
                                   [this] { deleteSelectedMaintenance(); });
    connect(alert, &QDialog::rejected, this, [this] { m_maintenanceToDelete.reset(); });
}

QString EquipmentDetailView::maintenanceDeleteAlertMessage() const
{
    if (!m_maintenanceToDelete)
        return u"Eliminare questa manutenzione?"_s;
    return u"Eliminare la manutenzione del %1?\nAnche eventuali documenti allegati verranno rimossi."_s.arg(
        m_context.dates.abbreviatedDate(m_maintenanceToDelete->date));
}

void EquipmentDetailView::deleteSelectedMaintenance()
{
    if (!m_maintenanceToDelete)
        return;
    const QUuid id = m_maintenanceToDelete->id;
    // The register works out the item's service dates anew and the copy takes them over before it is stored itself.
    m_context.equipment.deleteMaintenance(m_equipment.id, id);
    m_equipment.maintenanceHistory.removeIf([&](const Maintenance& record) { return record.id == id; });
    m_context.equipment.updateEquipment(m_equipment);
    m_maintenanceToDelete.reset();
    redraw();
}

void EquipmentDetailView::confirmDeletion()
{
    Alert::ask(this, u"Conferma Eliminazione"_s,
               u"Sei sicuro di voler eliminare l'attrezzatura '%1'? Questa azione non può essere "
               "annullata."_s.arg(m_equipment.name),
               [this] {
                   m_context.equipment.deleteEquipment(m_equipment);
                   Q_EMIT closed();
               });
}

void EquipmentDetailView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
}

} // namespace abissora

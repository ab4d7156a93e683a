// SPDX-License-Identifier: MIT
#include "EquipmentDetailView.h"

#include "Alert.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "DetailSections.h"
#include "EquipmentFormView.h"
#include "Labels.h"
#include "Literals.h"
#include "MaintenanceFormView.h"
#include "MaintenanceHistory.h"
#include "Metrics.h"
#include "Opening.h"
#include "ScrollPane.h"
#include "SymbolIcon.h"
#include "ViewSheet.h"

#include <QPainter>
#include <QScrollBar>

namespace abissora {

namespace {

constexpr int usualSideMargin = 18;
constexpr int narrowSideMargin = metrics::spaceM;
constexpr int usualLeastWidth = 286;
constexpr int mostLeastWidth = 440; // beside the list in the smallest window
constexpr int narrow = 340;         // in less, the cards need the margin

} // namespace

EquipmentDetailView::EquipmentDetailView(std::unique_ptr<EquipmentDetail> detail, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_detail(std::move(detail))
    , m_opener(opener)
    , m_header(new DetailHeader)
    , m_technical(new TechnicalDetails)
    , m_notes(named(new SelectableText, "notes"))
    , m_actions(new DetailActions)
    , m_body(new ScrollPane)
    , m_history(new MaintenanceHistory(*m_body))
{
    QWidget* const titleBar = makeTitleBar();
    fillBody();
    setObjectName(u"equipmentDetail"_s);
    setMinimumWidth(leastWidth());
    setLayout(inColumn(0, {titleBar, {m_body, 1}}));
    connectParts();
    redraw();
}

ViewSheet* EquipmentDetailView::makeSheet(std::unique_ptr<EquipmentDetail> detail, Opener& opener, QWidget* parent)
{
    auto* view = new EquipmentDetailView(std::move(detail), opener);
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
    auto* close = named(new IconButton(symbolIcon(u"xmark"_s), u"Chiudi"_s), "closeDetail");
    connect(close, &QAbstractButton::clicked, this, &EquipmentDetailView::closed);
    auto* title = named(new WrapLabel(TextStyle::Headline, &Tokens::text, u"Dettagli Attrezzatura"_s), "detailTitle");
    auto* bar = new QWidget;
    m_titleLine = inRow(metrics::spaceS, {{title, 1}, close});
    m_titleLine->setSpacing(-1); // the style's
    bar->setLayout(m_titleLine);
    return bar;
}

void EquipmentDetailView::fillBody()
{
    m_notes->setAccessibleName(u"Note"_s);
    auto* notes = new GroupBox(u"Note"_s, u"note.text"_s);
    notes->content()->addWidget(m_notes);

    m_cards = inColumn(metrics::spaceM, {m_header, m_technical, notes, m_actions, m_history});
    m_cards->addStretch(1); // takes all the spare height: no card grows
    m_body->widget()->setLayout(m_cards);
    connect(m_body->verticalScrollBar(), &QScrollBar::rangeChanged, this, &EquipmentDetailView::keepMargins);
    keepMargins();
}

void EquipmentDetailView::keepMargins()
{
    const bool isNarrow = width() < withText(narrow, fontMetrics());
    const int side = isNarrow ? narrowSideMargin : usualSideMargin;
    m_titleLine->setContentsMargins(side, 0, side - metrics::spaceXS, metrics::spaceS);
    // The scroll bar stands in the margin: the cards keep their width when it comes and goes.
    const QScrollBar* const bar = m_body->verticalScrollBar();
    const int right = bar->maximum() > 0 ? std::max(0, side - bar->sizeHint().width()) : side;
    m_cards->setContentsMargins(side, metrics::spaceXS, right, metrics::spaceL);
    const int padding = isNarrow ? metrics::spaceM - 2 : metrics::spaceL;
    for (Card* card : m_body->findChildren<Card*>())
        card->content()->setContentsMargins(padding, padding, padding, padding);
}

int EquipmentDetailView::leastWidth()
{
    return std::min(withText(usualLeastWidth, QFontMetrics(abissora::font(TextStyle::Body))), mostLeastWidth);
}

void EquipmentDetailView::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ApplicationFontChange)
        setMinimumWidth(leastWidth());
}

void EquipmentDetailView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    keepMargins();
}

void EquipmentDetailView::connectParts()
{
    EquipmentDetail* const detail = m_detail.get();
    connect(detail, &EquipmentDetail::changed, this, &EquipmentDetailView::redraw);

    connect(m_actions, &DetailActions::editClicked, this, &EquipmentDetailView::openEditForm);
    connect(m_actions, &DetailActions::addMaintenanceClicked, this, &EquipmentDetailView::openMaintenanceForm);
    connect(m_actions, &DetailActions::toggleActiveClicked, detail, &EquipmentDetail::toggleActive);
    connect(m_actions, &DetailActions::deleteClicked, this, &EquipmentDetailView::confirmDeletion);

    connect(m_history, &MaintenanceHistory::editRequested, this, &EquipmentDetailView::startEditingMaintenance);
    connect(m_history, &MaintenanceHistory::deleteRequested, this, &EquipmentDetailView::confirmDeleteMaintenance);
    connect(m_history, &MaintenanceHistory::openRequested, this, &EquipmentDetailView::openDocument);
    connect(m_history, &MaintenanceHistory::replaceRequested, detail, &EquipmentDetail::replaceDocument);
    connect(m_history, &MaintenanceHistory::uploadRequested, detail, &EquipmentDetail::uploadDocument);
    connect(m_history, &MaintenanceHistory::attachRequested, detail, &EquipmentDetail::attachDocument);
}

void EquipmentDetailView::setEquipment(const Equipment& item)
{
    if (item.id != equipment().id)
        m_body->verticalScrollBar()->setValue(0);
    m_detail->setEquipment(item);
}

void EquipmentDetailView::redraw()
{
    const DetailContent content = m_detail->content();
    m_header->setContent(content);
    m_technical->setLines(content.technicalDetails);
    m_notes->setText(content.notes);
    m_actions->setActive(content.isActive);
    const QList<MaintenanceRowContent> history = m_detail->history();
    if (history.isEmpty() && m_history->isAncestorOf(window()->focusWidget()))
        m_actions->focusAddMaintenance();
    m_history->setRows(history);
}

void EquipmentDetailView::openEditForm()
{
    auto* form =
        new EditEquipmentView(m_detail->equipmentModel(), m_detail->types(), m_detail->almanac(), equipment(), this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    connect(form, &EditEquipmentView::saved, m_detail.get(), &EquipmentDetail::setEquipment);
    form->open();
}

void EquipmentDetailView::openMaintenanceForm()
{
    openForm(m_detail->draft());
}

void EquipmentDetailView::startEditingMaintenance(const QUuid& id)
{
    openForm(m_detail->draft(id));
}

void EquipmentDetailView::openForm(std::unique_ptr<MaintenanceDraft> draft)
{
    auto* form = new MaintenanceFormView(std::move(draft), m_opener, this);
    form->setAttribute(Qt::WA_DeleteOnClose);
    form->open();
}

void EquipmentDetailView::openDocument(const QUuid& recordId, DocumentSlot slot)
{
    if (const auto path = m_detail->documentPath(recordId, slot))
        abissora::openDocument(*path, m_opener, *this);
    else
        redraw();
}

void EquipmentDetailView::confirmDeleteMaintenance(const QUuid& id)
{
    Alert::ask(this, u"Elimina Manutenzione"_s, m_detail->maintenanceDeleteAlertMessage(id),
               [this, id] { m_detail->deleteMaintenance(id); });
}

void EquipmentDetailView::confirmDeletion()
{
    Alert::ask(this, u"Conferma Eliminazione"_s,
               u"Sei sicuro di voler eliminare l'attrezzatura '%1'? Questa azione non può essere "
               "annullata."_s.arg(equipment().name),
               [this] {
                   m_detail->deleteEquipment();
                   Q_EMIT closed();
               });
}

void EquipmentDetailView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().window());
}

} // namespace abissora

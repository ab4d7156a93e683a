// SPDX-License-Identifier: MIT
#include "MaintenanceRow.h"

#include "Assembly.h"
#include "Buttons.h"
#include "DocumentControl.h"
#include "FileDrop.h"
#include "FlowLayout.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "PdfDocument.h"
#include "SymbolIcon.h"
#include "TypeScale.h"

#include <QContextMenuEvent>
#include <QMenu>

namespace abissora {

namespace {

constexpr int rowTileSide = 34;
constexpr int widestCost = 150;

QFont medium(QFont font)
{
    font.setWeight(QFont::Medium);
    return font;
}

} // namespace

MaintenanceRow::MaintenanceRow(QWidget* parent)
    : QWidget(parent)
    , m_tile(new IconTile(rowTileSide))
    , m_type(named(new WrapLabel(TextStyle::Headline, &Tokens::text), "maintenanceType"))
    , m_cost(named(new ElidedLabel(TextStyle::Caption, &Tokens::secondaryText), "maintenanceCost"))
    , m_description(named(new WrapLabel(TextStyle::Body, &Tokens::text), "maintenanceDescription"))
    , m_dateAndPerformer(named(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText), "maintenanceDate"))
    , m_completedIcon(new IconView)
    , m_completed(named(new WrapLabel(TextStyle::Caption, &Tokens::ok, u"Manutenzione avvenuta"_s), "completed"))
    , m_notCompleted(
          named(new WrapLabel(TextStyle::Caption, &Tokens::warning, u"Manutenzione non avvenuta"_s), "notCompleted"))
    , m_edit(named(new IconButton(symbolIcon(u"pencil.circle.fill"_s, NamedColor::blue), u"Modifica"_s),
                   "editMaintenance"))
    , m_receipt(makeDocument(DocumentSlot::Receipt))
    , m_certificate(makeDocument(DocumentSlot::Certificate))
{
    m_cost->setFont(medium(m_cost->font()));
    m_cost->setMaximumWidth(withText(widestCost, fontMetrics()));
    auto* documents = new FlowLayout(metrics::spaceS, 0);
    documents->addWidget(m_receipt);
    documents->addWidget(m_certificate);
    auto* texts = inColumn(
        metrics::spaceXS / 2,
        {inRow(metrics::spaceS, {{m_type, 1}, {m_cost, 0, Qt::AlignTop}}), m_description, m_dateAndPerformer,
         inRow(metrics::spaceXS, {m_completedIcon, {m_completed, 1}, {m_notCompleted, 1}, makeButtons()}), documents});
    setLayout(
        inRow(metrics::spaceM, {{m_tile, 0, Qt::AlignTop}, {texts, 1}}, {0, metrics::spaceXS, 0, metrics::spaceXS}));
    auto* drop =
        new FileDrop(*this, [this](const QString& path, QPoint place) { return slotFor(place) && isPdf(path); });
    connect(drop, &FileDrop::dropped, this,
            [this](const QString& path, QPoint place) { Q_EMIT attachRequested(m_id, slotFor(place).value(), path); });
}

std::optional<DocumentSlot> MaintenanceRow::slotFor(QPoint place) const
{
    if (m_receipt->geometry().contains(place))
        return DocumentSlot::Receipt;
    if (m_certificate->geometry().contains(place))
        return DocumentSlot::Certificate;
    if (!m_hasReceipt)
        return DocumentSlot::Receipt;
    return m_hasCertificate ? std::nullopt : std::optional(DocumentSlot::Certificate);
}

QWidget* MaintenanceRow::makeButtons()
{
    auto* remove =
        named(new IconButton(symbolIcon(u"trash.circle.fill"_s, NamedColor::red), u"Elimina"_s), "deleteMaintenance");
    auto* menu = named(new IconButton(symbolIcon(u"ellipsis.circle.fill"_s, NamedColor::secondary), u"Azioni"_s),
                       "maintenanceMenu");
    connect(m_edit, &QAbstractButton::clicked, this, &MaintenanceRow::edit);
    connect(remove, &QAbstractButton::clicked, this, &MaintenanceRow::remove);
    connect(menu, &QAbstractButton::clicked, this,
            [this, menu] { showMenu(menu->mapToGlobal(menu->rect().bottomLeft())); });

    auto* buttons = new QWidget;
    buttons->setLayout(inRow(0, {m_edit, remove, menu}));
    return buttons;
}

DocumentControl* MaintenanceRow::makeDocument(DocumentSlot slot)
{
    auto* document = new DocumentControl(slot, DocumentControl::Place::History);
    connect(document, &DocumentControl::openClicked, this, [this, slot] { Q_EMIT openRequested(m_id, slot); });
    connect(document, &DocumentControl::takeAwayClicked, this, [this, slot] { Q_EMIT replaceRequested(m_id, slot); });
    connect(document, &DocumentControl::takeInClicked, this, [this, slot] { Q_EMIT uploadRequested(m_id, slot); });
    return document;
}

void MaintenanceRow::setRow(const MaintenanceRowContent& row)
{
    m_id = row.id;
    m_tile->setIcon(symbolIcon(row.appearance.icon, row.appearance.color), row.appearance.color);
    m_type->setText(row.typeName);
    m_cost->setText(row.cost);
    m_cost->setVisible(!row.cost.isEmpty());
    m_description->setText(row.description);
    m_dateAndPerformer->setText(row.dateAndPerformer);
    for (IconButton* button : findChildren<IconButton*>())
        button->setAccessibleDescription(row.whichRecord);
    m_receipt->setRecord(row.whichRecord);
    m_certificate->setRecord(row.whichRecord);
    setAccessibleName(row.whichRecord);
    m_completedIcon->setIcon(row.isCompleted ? symbolIcon(u"checkmark.seal.fill"_s, NamedColor::green)
                                             : symbolIcon(u"exclamationmark.circle"_s, NamedColor::orange));
    m_completed->setVisible(row.isCompleted);
    m_notCompleted->setVisible(!row.isCompleted);
    m_hasReceipt = row.hasReceipt;
    m_hasCertificate = row.hasCertificate;
    m_receipt->setPresent(row.hasReceipt);
    m_certificate->setPresent(row.hasCertificate);
}

QString MaintenanceRow::shapeOf(const MaintenanceRowContent& row, int width) const
{
    const int textsWidth = width - m_tile->sizeHint().width() - metrics::spaceM;
    const int costWidth =
        row.cost.isEmpty() ? 0 : metrics::spaceS + std::min(m_cost->mostWidthOf(row.cost), m_cost->maximumWidth());
    // Where the type has no room beside the cost, what each of them gets is the layout's business.
    const bool hasRoom = m_type->linesOf(row.typeName, textsWidth - costWidth) == 1;
    const QString head = hasRoom ? QString() : row.typeName + u'\n' + row.cost;
    return u"%1 %2 %3%4%5 %6"_s.arg(QString::number(m_description->heightOf(row.description, textsWidth)),
                                    QString::number(m_dateAndPerformer->heightOf(row.dateAndPerformer, textsWidth)),
                                    QString::number(int(row.isCompleted)), QString::number(int(row.hasReceipt)),
                                    QString::number(int(row.hasCertificate)), head);
}

void MaintenanceRow::takeFocus()
{
    m_edit->setFocus(Qt::OtherFocusReason);
}

void MaintenanceRow::contextMenuEvent(QContextMenuEvent* event)
{
    showMenu(event->globalPos());
}

void MaintenanceRow::showMenu(QPoint globalPosition)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(u"maintenanceActions"_s);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction(symbolIcon(u"pencil"_s, NamedColor::blue), u"Modifica manutenzione"_s), &QAction::triggered,
            this, &MaintenanceRow::edit);
    connect(menu->addAction(symbolIcon(u"trash.circle.fill"_s, NamedColor::red), u"Elimina manutenzione"_s),
            &QAction::triggered, this, &MaintenanceRow::remove);
    menu->popup(globalPosition);
}

} // namespace abissora

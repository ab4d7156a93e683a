// SPDX-License-Identifier: MIT
#include "MaintenanceRow.h"

#include "Buttons.h"
#include "CostText.h"
#include "DocumentLink.h"
#include "FlowLayout.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QMenu>

namespace abissora {

namespace {

constexpr int tileSide = 34;

QFont medium(QFont font)
{
    font.setWeight(QFont::Medium);
    return font;
}

} // namespace

MaintenanceRow::MaintenanceRow(const AppContext& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_tile(new IconTile(tileSide))
    , m_type(new WrapLabel(TextStyle::Headline, &Tokens::text))
    , m_cost(new InkLabel(TextStyle::Caption, &Tokens::secondaryText))
    , m_description(new WrapLabel(TextStyle::Body, &Tokens::text))
    , m_dateAndPerformer(new WrapLabel(TextStyle::Caption, &Tokens::secondaryText))
    , m_completedIcon(new IconView)
    , m_completed(new WrapLabel(TextStyle::Caption, &Tokens::ok, u"Manutenzione avvenuta"_s))
    , m_notCompleted(new WrapLabel(TextStyle::Caption, &Tokens::warning, u"Manutenzione non avvenuta"_s))
    , m_edit(new IconButton(symbolIcon(u"pencil.circle.fill"_s, NamedColor::blue), u"Modifica"_s))
    , m_receipt(makeLink(DocumentSlot::Receipt))
    , m_certificate(makeLink(DocumentSlot::Certificate))
{
    m_type->setObjectName(u"maintenanceType"_s);
    m_cost->setObjectName(u"maintenanceCost"_s);
    m_cost->setFont(medium(m_cost->font()));
    m_description->setObjectName(u"maintenanceDescription"_s);
    m_dateAndPerformer->setObjectName(u"maintenanceDate"_s);
    m_completed->setObjectName(u"completed"_s);
    m_notCompleted->setObjectName(u"notCompleted"_s);
    build();
}

void MaintenanceRow::build()
{
    auto* heading = new QHBoxLayout;
    heading->setSpacing(metrics::spaceS);
    heading->addWidget(m_type, 1);
    heading->addWidget(m_cost, 0, Qt::AlignTop);
    auto* outcome = new QHBoxLayout;
    outcome->setSpacing(metrics::spaceXS);
    outcome->addWidget(m_completedIcon);
    outcome->addWidget(m_completed, 1);
    outcome->addWidget(m_notCompleted, 1);
    outcome->addWidget(makeButtons());
    auto* documents = new FlowLayout(metrics::spaceS, 0);
    documents->addWidget(m_receipt);
    documents->addWidget(m_certificate);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(metrics::spaceXS / 2);
    texts->addLayout(heading);
    texts->addWidget(m_description);
    texts->addWidget(m_dateAndPerformer);
    texts->addLayout(outcome);
    texts->addLayout(documents);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, metrics::spaceXS, 0, metrics::spaceXS);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(m_tile, 0, Qt::AlignTop);
    layout->addLayout(texts, 1);
}

QWidget* MaintenanceRow::makeButtons()
{
    m_edit->setObjectName(u"editMaintenance"_s);
    auto* remove = new IconButton(symbolIcon(u"trash.circle.fill"_s, NamedColor::red), u"Elimina"_s);
    remove->setObjectName(u"deleteMaintenance"_s);
    auto* menu = new IconButton(symbolIcon(u"ellipsis.circle.fill"_s, NamedColor::secondary), u"Azioni"_s);
    menu->setObjectName(u"maintenanceMenu"_s);
    connect(m_edit, &QAbstractButton::clicked, this, &MaintenanceRow::editRequested);
    connect(remove, &QAbstractButton::clicked, this, &MaintenanceRow::deleteRequested);
    connect(menu, &QAbstractButton::clicked, this,
            [this, menu] { showMenu(menu->mapToGlobal(menu->rect().bottomLeft())); });

    auto* buttons = new QWidget;
    auto* layout = new QHBoxLayout(buttons);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (IconButton* button : {m_edit, remove, menu})
        layout->addWidget(button);
    return buttons;
}

DocumentLink* MaintenanceRow::makeLink(DocumentSlot slot)
{
    auto* link = new DocumentLink(slot, m_context.documents, m_context.opener);
    connect(link, &DocumentLink::picked, this, [this, slot](const std::optional<QString>& name) {
        documentName(m_maintenance, slot) = name;
        Q_EMIT updated();
    });
    connect(link, &DocumentLink::removed, this, [this](const QString& name) {
        forgetDocument(m_maintenance, name);
        Q_EMIT updated();
    });
    return link;
}

void MaintenanceRow::setMaintenance(const Maintenance& maintenance)
{
    m_maintenance = maintenance;
    const TypeAppearance look = appearanceOf(maintenance.type);
    m_tile->setIcon(symbolIcon(look.icon, look.color), look.color);
    m_type->setText(rawValue(maintenance.type));
    const std::optional<QString> cost = costText::listed(maintenance.cost);
    m_cost->setText(cost.value_or(QString()));
    m_cost->setVisible(cost.has_value());
    m_description->setText(maintenance.description);
    m_dateAndPerformer->setText(
        u"%1 · Eseguito da: %2"_s.arg(m_context.dates.abbreviatedDate(maintenance.date), maintenance.performedBy));
    // The buttons of all rows have the same names.
    const QString which = m_context.dates.abbreviatedDate(maintenance.date) + u", "_s + maintenance.description;
    for (IconButton* button : findChildren<IconButton*>())
        button->setAccessibleDescription(which);
    const bool done = maintenance.isCompleted.value_or(true);
    m_completedIcon->setIcon(done ? symbolIcon(u"checkmark.seal.fill"_s, NamedColor::green)
                                  : symbolIcon(u"exclamationmark.circle"_s, NamedColor::orange));
    m_completed->setVisible(done);
    m_notCompleted->setVisible(!done);
    m_receipt->setFileName(maintenance.receiptFileName);
    m_certificate->setFileName(maintenance.certificateFileName);
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
            this, &MaintenanceRow::editRequested);
    connect(menu->addAction(symbolIcon(u"trash.circle.fill"_s, NamedColor::red), u"Elimina manutenzione"_s),
            &QAction::triggered, this, &MaintenanceRow::deleteRequested);
    menu->popup(globalPosition);
}

} // namespace abissora

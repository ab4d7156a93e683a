// SPDX-License-Identifier: MIT
#include "SettingsView.h"

#include "EquipmentTypeManagementView.h"
#include "HelpSheet.h"
#include "IconView.h"
#include "Literals.h"
#include "Metrics.h"
#include "SettingsGroups.h"
#include "SymbolIcon.h"
#include "UpdateSheet.h"
#include "UpdatesGroup.h"

#include <QHideEvent>
#include <QShowEvent>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int columnWidth = 704;
constexpr int headerIconSide = 32;

} // namespace

SettingsView::SettingsView(SettingsViewModel& settings, EquipmentTypeViewModel& types, UpdateCheckerViewModel& updates,
                           const ProgramFacts& program, IdGenerator& ids, Opener& opener, QWidget* parent)
    : QScrollArea(parent)
    , m_settings(settings)
    , m_types(types)
    , m_updates(updates)
    , m_program(program)
    , m_ids(ids)
    , m_opener(opener)
    , m_updatesGroup(new UpdatesGroup(settings, updates))
{
    setObjectName(u"settings"_s);
    setAccessibleName(u"Impostazioni"_s);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);

    auto* column = new QWidget;
    column->setMaximumWidth(withText(columnWidth, fontMetrics()));
    auto* groups = new QVBoxLayout(column);
    groups->setContentsMargins(0, metrics::spaceM, 0, metrics::spaceXL);
    groups->setSpacing(metrics::spaceL);
    groups->addWidget(makeHeader());
    addGroups(groups);
    groups->addStretch();

    auto* page = new QWidget;
    auto* layout = new QHBoxLayout(page);
    layout->setContentsMargins(metrics::spaceXL, 0, metrics::spaceXL, 0);
    layout->addStretch(1);
    layout->addWidget(column, 1000);
    layout->addStretch(1);
    setWidget(page);
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);

    connect(&updates, &UpdateCheckerViewModel::availableUpdateChanged, this, &SettingsView::offerUpdate);
}

QWidget* SettingsView::makeHeader()
{
    auto* header = new QWidget;
    auto* layout = new QGridLayout(header);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(metrics::spaceM);
    layout->setVerticalSpacing(0);
    layout->setColumnStretch(1, 1);
    layout->addWidget(new IconView(symbolIcon(u"gear"_s, NamedColor::blue), headerIconSide), 0, 0, 2, 1);
    layout->addWidget(new InkLabel(TextStyle::Title, &Tokens::text, u"Impostazioni"_s), 0, 1);
    layout->addWidget(new InkLabel(TextStyle::Body, &Tokens::secondaryText, u"Configura la tua esperienza"_s), 1, 1);
    return header;
}

void SettingsView::addGroups(QVBoxLayout* groups)
{
    groups->addWidget(makeTypesGroup(m_types, [this] { manageTypes(); }));
    groups->addWidget(makeNotificationsGroup(m_settings));
    groups->addWidget(m_updatesGroup);
    groups->addWidget(makeGeneralGroup(m_settings));
    groups->addWidget(makeAppearanceGroup(m_settings));
    groups->addWidget(makeHelpGroup([this] { showHelp(); }));
    groups->addWidget(makeInformationGroup(m_program, m_types, m_opener));
    groups->addWidget(makeRestoreGroup([this] {
        m_settings.resetToDefaults();
        m_types.resetToDefaults();
    }));
}

bool SettingsView::showingTypeManagement() const
{
    return qobject_cast<EquipmentTypeManagementView*>(m_sheet) != nullptr && m_sheet->isVisible();
}

bool SettingsView::showingHelp() const
{
    return qobject_cast<HelpSheet*>(m_sheet) != nullptr && m_sheet->isVisible();
}

void SettingsView::manageTypes()
{
    openSheet(new EquipmentTypeManagementView(m_types, m_ids, window()));
}

void SettingsView::showHelp()
{
    openSheet(new HelpSheet(m_opener, window()));
}

void SettingsView::offerUpdate()
{
    const std::optional<UpdateInfo>& update = m_updates.availableUpdate();
    auto* const offer = qobject_cast<UpdateSheet*>(m_sheet);
    const bool isCovered = m_sheet && m_sheet->isVisible();
    if (!update && offer != nullptr) {
        offer->close();
    } else if (update && !isCovered && isVisible()) {
        auto* sheet = new UpdateSheet(*update, m_program.product.websiteURL, m_opener, window());
        connect(sheet, &QDialog::finished, &m_updates, &UpdateCheckerViewModel::clearAvailableUpdate);
        openSheet(sheet);
    }
}

void SettingsView::openSheet(SheetWindow* sheet)
{
    m_sheet = sheet;
    sheet->setAttribute(Qt::WA_DeleteOnClose);
    // An update found while another sheet stood here waits for its turn.
    connect(sheet, &QDialog::finished, this, &SettingsView::offerUpdate, Qt::QueuedConnection);
    sheet->open();
}

void SettingsView::showEvent(QShowEvent* event)
{
    QScrollArea::showEvent(event);
    // An update found by the check at start is offered here as well.
    if (!event->spontaneous())
        QMetaObject::invokeMethod(this, &SettingsView::offerUpdate, Qt::QueuedConnection);
}

void SettingsView::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous())
        m_updatesGroup->forgetFeedback();
    QScrollArea::hideEvent(event);
}

} // namespace abissora

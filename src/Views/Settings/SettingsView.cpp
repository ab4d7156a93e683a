// SPDX-License-Identifier: MIT
#include "SettingsView.h"

#include "Assembly.h"
#include "EquipmentTypeManagementView.h"
#include "HelpView.h"
#include "IconViews.h"
#include "Literals.h"
#include "Metrics.h"
#include "SettingsGroups.h"
#include "SymbolIcon.h"
#include "UpdateView.h"
#include "UpdatesGroup.h"
#include "ViewSheet.h"

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
    : ScrollPane(parent)
    , m_settings(settings)
    , m_types(types)
    , m_updates(updates)
    , m_program(program)
    , m_ids(ids)
    , m_opener(opener)
    , m_updatesGroup(program.looksForUpdates() ? new UpdatesGroup(settings, updates) : nullptr)
{
    setObjectName(u"settings"_s);
    setAccessibleName(u"Impostazioni"_s);

    auto* column = new QWidget;
    column->setMaximumWidth(withText(columnWidth, fontMetrics()));
    auto* groups = new QVBoxLayout(column);
    groups->setContentsMargins(0, metrics::spaceM, 0, metrics::spaceXL);
    groups->setSpacing(metrics::spaceL);
    groups->addWidget(makeHeader());
    addGroups(groups);
    groups->addStretch();

    widget()->setLayout(inRow(0, {Stretch{1}, {column, 1000}, Stretch{1}}, {metrics::spaceXL, 0, metrics::spaceXL, 0}));
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
    if (m_updatesGroup != nullptr)
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
    return m_sheet && m_sheet->findChild<HelpView*>() != nullptr && m_sheet->isVisible();
}

void SettingsView::manageTypes()
{
    openSheet(new EquipmentTypeManagementView(m_types, m_ids, window()));
}

void SettingsView::showHelp()
{
    auto* view = new HelpView(m_program.guide(), m_opener);
    openSheet(new ViewSheet({.view = view,
                             .title = u"Aiuto"_s,
                             .margins = {1, metrics::spaceS, 1, 1},
                             .preferredSize = {900, 680},
                             .firstFocus = view->findChild<QWidget*>(u"helpSearch"_s),
                             .closeButton = u"Chiudi"_s},
                            window()));
}

void SettingsView::offerUpdate()
{
    const std::optional<UpdateInfo>& update = m_updates.availableUpdate();
    const bool isOffered = m_sheet && m_sheet->findChild<UpdateView*>() != nullptr;
    const bool isAskedFor = update && m_updates.foundBy() == CheckReason::Person; // else a window offers it
    const bool isCovered = m_sheet && m_sheet->isVisible();
    if (!update && isOffered) {
        m_sheet->close();
    } else if (isAskedFor && !isCovered && isVisible()) {
        auto* view = new UpdateView(*update, m_program.product.websiteURL, m_opener);
        auto* sheet = new ViewSheet({.view = view,
                                     .title = u"Aggiornamento disponibile"_s,
                                     .margins = {metrics::spaceS, metrics::spaceL, metrics::spaceS, metrics::spaceS},
                                     .firstFocus = view->focusProxy()},
                                    window());
        connect(view, &UpdateView::closeRequested, sheet, &QDialog::accept);
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
    ScrollPane::showEvent(event);
    // An update may have been found since the person left.
    if (!event->spontaneous())
        QMetaObject::invokeMethod(this, &SettingsView::offerUpdate, Qt::QueuedConnection);
}

void SettingsView::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous() && m_updatesGroup != nullptr)
        m_updatesGroup->forgetFeedback();
    ScrollPane::hideEvent(event);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "ImportView.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "CountText.h"
#include "IconViews.h"
#include "ImportTable.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SegmentedControl.h"
#include "SymbolIcon.h"
#include "ViewSheet.h"

#include <QPointer>

namespace abissora {

namespace {

constexpr QSize preferredSize(960, 640);
constexpr int sideMargin = 18;

// Made outside the coroutine: what it waits for shall capture nothing of its frame.
LongWork::Function readingOf(const std::shared_ptr<ImportPlan>& plan, const ImportReading& reading)
{
    return [plan, reading](WorkProgress& progress) -> IoResult<void> {
        plan->read(reading, &progress);
        return {};
    };
}

int indexOf(ImportSubject subject)
{
    return subject == ImportSubject::Items ? 0 : 1;
}

} // namespace

ImportView::ImportView(ImportPlan plan, const EquipmentTypeViewModel& types, LongWork& work, Import import,
                       QWidget* parent)
    : QWidget(parent)
    , m_plan(std::move(plan))
    , m_reading(m_plan.reading())
    , m_work(work)
    , m_import(std::move(import))
    , m_format(named(new ElidedLabel(TextStyle::Callout, &Tokens::secondaryText), u"format"))
    , m_pane(new QWidget)
    , m_table(new ImportTable(m_plan, types, *m_pane))
    , m_summary(named(new InkLabel(TextStyle::Body, &Tokens::text), u"summary"))
    , m_faults(named(new InkLabel(TextStyle::Body, &Tokens::danger), u"faults"))
    , m_cancel(named(new PlainButton(u"Annulla"_s), u"cancel"))
    , m_importButton(named(new PrimaryButton(u"Importa"_s), u"import"))
{
    setObjectName(u"importView"_s);
    m_pane->setLayout(inColumn(0, {m_table}));
    auto* body = inColumn(metrics::spaceM, {makeFileCard(), {m_pane, 1}},
                          {sideMargin, metrics::spaceL - 2, sideMargin, metrics::spaceL - 2});
    setLayout(
        inColumn(0, {sheetTitle(u"Importa"_s), new Separator, {body, 1}, new Separator, makeFooter()}, {1, 1, 1, 1}));
    m_table->orderTabs();
    connect(m_cancel, &QAbstractButton::clicked, this, &ImportView::closed);
    connect(m_importButton, &QAbstractButton::clicked, this, &ImportView::importChosen);
    connect(&m_table->importModel(), &ImportTableModel::choiceChanged, this, &ImportView::showCounts);
    connect(m_table, &ImportTable::fieldChosen, this, [this](qsizetype column, ImportField field) {
        ImportReading reading = m_reading;
        reading.fields[column] = field;
        read(reading);
    });
    showCounts();
}

ImportView::~ImportView()
{
    if (m_progress)
        m_progress->cancel();
}

ViewSheet* ImportView::makeSheet(ImportPlan plan, const EquipmentTypeViewModel& types, LongWork& work, Import import,
                                 QWidget* over)
{
    auto* view = new ImportView(std::move(plan), types, work, std::move(import));
    const QFontMetrics metrics = view->fontMetrics();
    auto* sheet = new ViewSheet(
        {.view = view,
         .title = u"Importa"_s,
         .preferredSize = {withText(preferredSize.width(), metrics), withText(preferredSize.height(), metrics)},
         .firstFocus = view->m_table},
        over);
    connect(view, &ImportView::closed, sheet, &QDialog::reject);
    return sheet;
}

QWidget* ImportView::makeFileCard()
{
    auto* card = new Card;
    auto* tile = new IconTile;
    tile->setIcon(symbolIcon(u"doc.text"_s, NamedColor::blue), NamedColor::blue);
    auto* name = named(new ElidedLabel(TextStyle::Headline, &Tokens::text), u"fileName");
    name->setText(m_plan.fileName());
    auto* row = inRow(metrics::spaceM, {tile, {inColumn(2, {name, m_format}), 1}});
    if (m_plan.table() != nullptr) {
        m_subject = named(new SegmentedControl(SegmentedControl::Purpose::Choice), u"subject");
        m_subject->setAccessibleName(u"Che cosa contiene"_s);
        m_subject->addSegment(u"Articoli"_s);
        m_subject->addSegment(u"Manutenzioni"_s);
        m_subject->setCurrentIndex(indexOf(m_plan.subject()));
        connect(m_subject, &SegmentedControl::activated, this, [this](int index) {
            read(m_plan.usualReading(index == 0 ? ImportSubject::Items : ImportSubject::Records));
        });
        row->addWidget(m_subject);
    }
    card->content()->addLayout(row);
    return card;
}

QLayout* ImportView::makeFooter()
{
    return inRow(metrics::spaceS + 2, {m_summary, m_faults, Stretch{1}, m_cancel, m_importButton},
                 {sideMargin, metrics::spaceM + 2, sideMargin, metrics::spaceM + 2});
}

QCoro::Task<> ImportView::read(ImportReading reading)
{
    const QPointer<ImportView> alive(this);
    if (m_progress)
        m_progress->cancel();
    m_reading = reading;
    const auto progress = std::make_shared<WorkProgress>();
    m_progress = progress;
    showCounts();
    const auto plan = std::make_shared<ImportPlan>(m_plan);
    const QString title = u"Lettura delle righe…"_s;
    const LongWork::Function work = readingOf(plan, reading);
    co_await m_work.run(title, work, progress);
    if (!alive || progress != m_progress)
        co_return;
    m_progress.reset();
    if (progress->isCancelled())
        m_table->showColumns();
    else
        m_table->importModel().setPlan(std::move(*plan));
    m_reading = m_plan.reading();
    m_subject->setCurrentIndex(indexOf(m_plan.subject()));
    m_table->orderTabs();
    showCounts();
}

void ImportView::showCounts()
{
    const QString problem = m_plan.columnsProblem();
    const QString faults = m_plan.faultSummary();
    m_format->setText(m_plan.format());
    m_summary->setText(!problem.isEmpty() ? QString() : m_plan.summary() + (faults.isEmpty() ? u""_s : u","_s));
    m_summary->setVisible(problem.isEmpty());
    m_faults->setText(problem.isEmpty() ? faults : problem);
    m_faults->setVisible(!m_faults->text().isEmpty());
    const qsizetype chosen = m_plan.chosenCount();
    const bool isOfRecords = m_plan.subject() == ImportSubject::Records;
    m_importButton->setText(chosen == 0 ? u"Importa"_s
                                        : u"Importa "_s + (isOfRecords ? recordsText(chosen) : itemsText(chosen)));
    m_importButton->setEnabled(chosen > 0 && !m_progress);
    announce(*m_faults, problem);
}

void ImportView::importChosen()
{
    const Import import = m_import; // what runs shall not go away with the view
    import(m_plan);
    Q_EMIT closed();
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "PrintView.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "EquipmentViewModel.h"
#include "FilePanel.h"
#include "FormRow.h"
#include "Labels.h"
#include "Metrics.h"
#include "OutputFile.h"
#include "PagePreview.h"
#include "PaperLook.h"
#include "PrintedItem.h"
#include "PrintedList.h"
#include "Reason.h"
#include "SegmentedControl.h"
#include "ViewSheet.h"

#include <QPointer>
#include <cerrno>

namespace abissora {

namespace {

constexpr QSize preferredSize(900, 640);
constexpr int sideMargin = 18;
constexpr int choiceWidth = 380;
constexpr int labelColumn = 80;
constexpr qsizetype quickRows = 1000; ///< as many are laid out at once
constexpr qsizetype longestName = 100;

QString pagesText(qsizetype count)
{
    return count == 1 ? u"1 pagina"_s : u"%1 pagine"_s.arg(count);
}

/// A file's name out of any text.
QString fileName(const QString& title)
{
    QString name = title.simplified().left(longestName);
    for (QChar& c : name) {
        if (c == u'/' || c == u'\\' || c == u':')
            c = u'-';
    }
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? u"Abissora"_s : name;
}

// Made outside the coroutines: temporaries within them would be the frame's.

SavePanelRequest requestFor(const PrintedPaper& paper)
{
    return {.title = u"Salva PDF"_s,
            .message = {},
            .confirmLabel = u"Salva"_s,
            .suggestedName = fileName(paper.title),
            .formats = {{u"Documento PDF"_s, u"pdf"_s}}};
}

LongWork::Function writingOf(const PageLayout& layout, const QString& path)
{
    return [layout, path, ink = paperInk()](WorkProgress& progress) {
        return OutputFile::write(path,
                                 [&](QIODevice& file) { return PagePainter::writePdf(file, {layout}, ink, progress); });
    };
}

LongWork::Function layingOut(const PrintedPaper& paper, const QPageSize& size,
                             const std::shared_ptr<std::optional<PageLayout>>& layout)
{
    return [paper, size = size.size(QPageSize::Point), layout](WorkProgress&) {
        layout->emplace(paper, size);
        return IoResult<void>();
    };
}

} // namespace

PrintView::PrintView(Sources sources, std::optional<Equipment> item, QWidget* parent)
    : QWidget(parent)
    , m_sources(std::move(sources))
    , m_item(std::move(item))
    , m_what(named(new SegmentedControl(SegmentedControl::Purpose::Choice), u"printWhat"))
    , m_size(named(new SegmentedControl(SegmentedControl::Purpose::Choice), u"paperSize"))
    , m_title(named(new ElidedLabel(TextStyle::Headline, &Tokens::text), u"paperTitle"))
    , m_count(named(new WrapLabel(TextStyle::Callout, &Tokens::secondaryText), u"pageCount"))
    , m_preview(named(new PagePreview, u"preview"))
    , m_error(named(new WrapLabel(TextStyle::Callout, &Tokens::danger), u"printError"))
    , m_cancel(named(new PlainButton(u"Annulla"_s), u"cancel"))
    , m_save(named(new PlainButton(u"Salva PDF…"_s), u"savePdf"))
    , m_print(named(new PrimaryButton(u"Stampa…"_s), u"print"))
{
    setObjectName(u"printView"_s);
    m_what->addSegment(u"Elenco"_s);
    m_what->addSegment(u"Scadenze"_s);
    if (m_item)
        m_what->addSegment(u"Scheda"_s);
    m_what->setCurrentIndex(m_item ? Item : List);
    m_size->addSegment(u"A4"_s);
    m_size->addSegment(u"Letter"_s);
    m_size->setCurrentIndex(usualPaperSize(DateFormat::userLocale()) == PaperSize::A4 ? 0 : 1);
    setLayout(inColumn(0, {sheetTitle(u"Stampa"_s), new Separator, {makeBody(), 1}, new Separator, makeFooter()},
                       {1, 1, 1, 1}));
    connect(m_what, &SegmentedControl::activated, this, &PrintView::layOut);
    connect(m_size, &SegmentedControl::activated, this, &PrintView::layOut);
    connect(m_cancel, &QAbstractButton::clicked, this, &PrintView::closed);
    connect(m_save, &QAbstractButton::clicked, this, &PrintView::savePdf);
    connect(m_print, &QAbstractButton::clicked, this, &PrintView::print);
    layOut();
}

PrintView::~PrintView()
{
    if (m_progress)
        m_progress->cancel();
}

ViewSheet* PrintView::makeSheet(const Sources& sources, const std::optional<Equipment>& item, QWidget* over)
{
    auto* view = new PrintView(sources, item);
    const QFontMetrics metrics = view->fontMetrics();
    auto* sheet = new ViewSheet(
        {.view = view,
         .title = u"Stampa"_s,
         .preferredSize = {withText(preferredSize.width(), metrics), withText(preferredSize.height(), metrics)},
         .firstFocus = view->m_what->findChildren<QAbstractButton*>().value(view->m_what->currentIndex())},
        over);
    connect(view, &PrintView::closed, sheet, &QDialog::reject);
    return sheet;
}

QLayout* PrintView::makeBody()
{
    auto* what = new FormRow(u"Contenuto"_s, m_what);
    auto* size = new FormRow(u"Carta"_s, m_size);
    for (FormRow* row : {what, size})
        row->setLabelColumn(labelColumn);
    m_what->setAccessibleName(u"Contenuto"_s);
    m_size->setAccessibleName(u"Carta"_s);
    auto* choices = new QWidget;
    choices->setLayout(
        inColumn(metrics::spaceM, {what, size, new Separator, inColumn(2, {m_title, m_count}), Stretch{1}}));
    choices->setFixedWidth(withText(choiceWidth, fontMetrics()));
    return inRow(metrics::spaceXL, {choices, {m_preview, 1}},
                 {sideMargin, metrics::spaceL, sideMargin, metrics::spaceM});
}

QLayout* PrintView::makeFooter()
{
    setAccessibleRole(*m_error, QAccessible::AlertMessage);
    m_error->hide();
    auto* buttons = inRow(metrics::spaceS + 2, {Stretch{1}, m_cancel, m_save, m_print});
    return inColumn(metrics::spaceS, {m_error, buttons},
                    {sideMargin, metrics::spaceM + 2, sideMargin, metrics::spaceM + 2});
}

PrintedPaper PrintView::chosenPaper() const
{
    const auto& [equipment, types, almanac, filePanel, work, print] = m_sources;
    switch (m_what->currentIndex()) {
    case Item:
        return PrintedItem::sheetOf(*m_item, types, almanac, paperPicture);
    case Due:
        return PrintedList::dueOf(equipment.summary(), types, almanac);
    default:
        return PrintedList::listOf(equipment.filteredEquipment(), ListContent::narrowingOf(equipment), types, almanac);
    }
}

QPageSize PrintView::chosenSize() const
{
    return pageSize(m_size->currentIndex() == 0 ? PaperSize::A4 : PaperSize::Letter);
}

void PrintView::layOut()
{
    showReason(*m_error, {});
    if (m_progress)
        m_progress->cancel();
    m_progress = std::make_shared<WorkProgress>();
    PrintedPaper paper = chosenPaper();
    m_title->setText(paper.title);
    if (paper.rows.size() <= quickRows)
        showPages(PageLayout(std::move(paper), chosenSize().size(QPageSize::Point)));
    else
        layOutElsewhere(std::move(paper));
}

QCoro::Task<> PrintView::layOutElsewhere(PrintedPaper paper)
{
    const QPointer<PrintView> alive(this);
    const auto layout = std::make_shared<std::optional<PageLayout>>();
    const auto progress = m_progress;
    showPages(std::nullopt);
    m_count->setText(u"Impaginazione in corso…"_s);
    const QString title = u"Impaginazione"_s;
    const LongWork::Function work = layingOut(paper, chosenSize(), layout);
    const IoResult<void> done = co_await m_sources.work.run(title, work, progress);
    if (!alive || progress != m_progress)
        co_return;
    if (done)
        showPages(*layout);
    else
        m_count->setText(u"Impaginazione annullata"_s);
}

void PrintView::showPages(const std::optional<PageLayout>& layout)
{
    m_layout = layout;
    m_preview->setLayoutOfPages(layout);
    m_save->setEnabled(layout.has_value());
    m_print->setEnabled(layout.has_value());
    if (layout)
        m_count->setText(pagesText(layout->pages().size()));
}

QCoro::Task<> PrintView::savePdf()
{
    const QPointer<PrintView> alive(this);
    showReason(*m_error, {});
    const PageLayout layout = *m_layout;
    const auto target = m_sources.filePanel.pickTarget(requestFor(layout.paper()));
    if (!alive || !target)
        co_return;
    const QString path = target->path;
    const QString title = u"Salva PDF"_s;
    const LongWork::Function work = writingOf(layout, path);
    const auto progress = std::make_shared<WorkProgress>();
    const IoResult<void> written = co_await m_sources.work.run(title, work, progress);
    if (!alive)
        co_return;
    if (written)
        Q_EMIT closed();
    else if (written.error() != IoError::fromErrno(ECANCELED))
        showReason(*m_error, OutputFile::failure(path, written.error()));
}

void PrintView::print()
{
    showReason(*m_error, {});
    m_sources.print(m_layout->paper(), chosenSize(), window(), [alive = QPointer(this)](bool isPrinted) {
        if (!alive)
            return;
        if (isPrinted)
            Q_EMIT alive->closed();
        else
            showReason(*alive->m_error, u"Non è stato possibile stampare."_s);
    });
}

} // namespace abissora

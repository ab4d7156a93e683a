// SPDX-License-Identifier: MIT
#include "RestoreView.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "Cards.h"
#include "DifferenceCard.h"
#include "EmptyState.h"
#include "Labels.h"
#include "Literals.h"
#include "LookedAtStates.h"
#include "Metrics.h"
#include "Painting.h"
#include "Reason.h"
#include "ScreenPage.h"
#include "StateList.h"
#include "ViewSheet.h"

#include <QPainter>
#include <QPointer>
#include <QScrollBar>

namespace abissora {

namespace {

constexpr QSize preferredSize(860, 600);
constexpr int listWidth = 300;
constexpr int windowMargin = 18;
constexpr std::chrono::milliseconds soon(200);

/// A hairline from top to bottom.
class Border final : public QFrame
{
public:
    Border()
    {
        setFixedWidth(1);
        setAccessibleRole(*this, QAccessible::Separator, AccessibleParts::Hidden);
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        drawVerticalHairline(painter, 0, height(), 0, Tokens::of(palette()).border);
    }
};

} // namespace

RestoreView::RestoreView(const RestoreContent::Sources& sources, LookedAtStates& lookedAt, Restore restore,
                         QWidget* parent)
    : QWidget(parent)
    , m_content(sources)
    , m_lookedAt(lookedAt)
    , m_restore(std::move(restore))
    , m_states(new StateList(m_content))
    , m_page(new ScreenPage(u"Che cosa cambia rispetto ad adesso"_s))
    , m_title(named(new ElidedLabel(TextStyle::Headline, &Tokens::text), u"stateTitle"))
    , m_subtitle(named(new WrapLabel(TextStyle::Callout, &Tokens::secondaryText), u"stateSubtitle"))
    , m_error(named(new WrapLabel(TextStyle::Callout, &Tokens::danger), u"restoreError"))
    , m_cancel(named(new PlainButton(u"Annulla"_s), u"cancel"))
    , m_restoreButton(named(new PrimaryButton(u"Ripristina"_s), u"restore"))
    , m_fromFile(named(new PlainButton(u"Da un file…"_s), u"fromFile"))
{
    setObjectName(u"restoreView"_s);
    setLayout(inColumn(0, {sheetTitle(u"Ripristina"_s), new Separator, {makeBody(), 1}, new Separator, makeFooter()},
                       {1, 1, 1, 1}));
    connect(m_cancel, &QAbstractButton::clicked, this, &RestoreView::closed);
    connect(m_restoreButton, &QAbstractButton::clicked, this, &RestoreView::restoreChosen);
    connect(m_fromFile, &QAbstractButton::clicked, this, &RestoreView::chooseCopy);
    connect(m_states, &StateList::chosenChanged, this, [this](qsizetype index) {
        if (index >= 0)
            showState(index);
    });
    connect(&m_content, &RestoreContent::compared, this, &RestoreView::showCompared);
    m_patience.setSingleShot(true);
    m_patience.setInterval(soon);
    connect(&m_patience, &QTimer::timeout, this, [this] { showPreview(m_beginning); });
    if (!m_content.states().isEmpty())
        showState(0);
}

RestoreView::~RestoreView()
{
    if (m_work)
        m_work->cancel();
}

void RestoreView::offerCopies(CopyActions& copies)
{
    m_copies = &copies;
    m_fromFile->show();
}

ViewSheet* RestoreView::makeSheet(const RestoreContent::Sources& sources, LookedAtStates& lookedAt, Restore restore,
                                  QWidget* over, CopyActions* copies)
{
    auto* view = new RestoreView(sources, lookedAt, std::move(restore));
    if (copies != nullptr)
        view->offerCopies(*copies);
    const QFontMetrics metrics = view->fontMetrics();
    auto* sheet = new ViewSheet(
        {.view = view,
         .title = u"Ripristina"_s,
         .preferredSize = {withText(preferredSize.width(), metrics), withText(preferredSize.height(), metrics)},
         .firstFocus = view->firstFocus()},
        over);
    connect(view, &RestoreView::closed, sheet, &QDialog::reject);
    return sheet;
}

QLayout* RestoreView::makeBody()
{
    QVBoxLayout* const column = m_page->column();
    column->setContentsMargins(windowMargin, metrics::spaceL - 2, windowMargin, windowMargin);
    column->addLayout(inColumn(2, {m_title, m_subtitle}));
    column->addStretch();
    m_states->area().setFixedWidth(withText(listWidth, fontMetrics()));

    m_nothing = named(new EmptyState(u"clock.arrow.circlepath"_s, u"Nessuno stato precedente"_s), u"noStates");
    const bool any = !m_content.states().isEmpty();
    if (any)
        m_nothing->hide();
    auto* border = new Border;
    // Shown they are by the window: without a parent each would be one for a moment.
    for (QWidget* part : std::initializer_list<QWidget*>{&m_states->area(), border, m_page}) {
        if (!any)
            part->hide();
    }
    m_withState.append(m_page);
    return inRow(0, {&m_states->area(), border, {m_page, 1}, {m_nothing, 1}});
}

QLayout* RestoreView::makeFooter()
{
    auto* promise = named(new WrapLabel(TextStyle::Callout, &Tokens::secondaryText,
                                        u"Lo stato di adesso viene conservato prima di ripristinare."_s),
                          u"promise");
    promise->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (m_content.states().isEmpty())
        promise->hide();
    m_withState.append(promise);
    m_fromFile->hide();
    m_restoreButton->setEnabled(false);
    setAccessibleRole(*m_error, QAccessible::AlertMessage);
    m_error->hide();
    auto* buttons =
        inRow(metrics::spaceS + 2, {m_fromFile, {promise, 1}, Gap{metrics::spaceS}, m_cancel, m_restoreButton});
    if (m_content.states().isEmpty())
        buttons->insertStretch(1, 1);
    return inColumn(metrics::spaceS, {m_error, buttons},
                    {windowMargin, metrics::spaceM + 2, windowMargin, metrics::spaceM + 2});
}

QWidget* RestoreView::firstFocus() const
{
    QWidget* const chosen = m_states->chosenButton();
    return chosen != nullptr ? chosen : m_cancel;
}

void RestoreView::showState(qsizetype index)
{
    m_copy.reset();
    const EarlierState& state = m_content.states().at(index);
    showWhenSlow(m_content.compare(index));
    if (wantsAttention(state)) {
        QStringList names;
        for (const EarlierState& existing : m_content.states())
            names.append(existing.name);
        m_lookedAt.add(state.name, names);
    }
}

void RestoreView::showWhenSlow(const RestorePreview& beginning)
{
    m_isComparing = true;
    m_beginning = beginning;
    m_patience.start();
}

void RestoreView::showCompared(const RestorePreview& preview)
{
    m_isComparing = false;
    m_patience.stop();
    showPreview(preview);
    if (m_copy)
        announce(*m_title, preview.title + u": "_s + preview.subtitle);
}

void RestoreView::showPreview(const RestorePreview& preview)
{
    m_title->setText(preview.title);
    m_subtitle->setText(preview.subtitle);
    delete std::exchange(m_card, nullptr);
    if (!preview.groups.isEmpty()) {
        m_card = named(new DifferenceCard(preview.groups), u"differences");
        m_page->column()->insertWidget(1, m_card);
    }
    m_page->verticalScrollBar()->setValue(0);
    m_restoreButton->setEnabled(preview.canBeRestored);
    showReason(*m_error, {});
}

void RestoreView::restoreChosen()
{
    if (m_work || m_isComparing)
        return;
    if (m_copy)
        restoreCopy();
    else
        restoreState();
}

void RestoreView::chooseCopy()
{
    if (m_work || !m_copies)
        return;
    const QPointer<RestoreView> alive(this);
    const auto path = m_copies->pickCopy();
    // The panel runs the event loop.
    if (path && alive && m_copies)
        openCopy(*path);
}

QCoro::Task<> RestoreView::openCopy(QString path)
{
    const QPointer<RestoreView> alive(this);
    const auto progress = std::make_shared<WorkProgress>();
    m_work = progress;
    const IoResult<OpenedCopy> opened = co_await m_copies->open(path, progress);
    if (!alive)
        co_return;
    m_work.reset();
    if (!opened) {
        showReason(*m_error, progress->isCancelled() ? QString() : opened.error().reason);
        co_return;
    }
    m_states->choose(-1);
    m_copy = *opened;
    m_nothing->hide();
    for (QWidget* part : std::as_const(m_withState))
        part->show();
    showWhenSlow(m_content.compareCopy(m_copy->state, m_copy->documents));
}

QCoro::Task<> RestoreView::restoreCopy()
{
    const QPointer<RestoreView> alive(this);
    const auto progress = std::make_shared<WorkProgress>();
    m_work = progress;
    const QPointer<CopyActions> copies = m_copies;
    const IoResult<void> restored =
        copies ? co_await copies->restore(m_copy->path, progress) : tl::unexpected(IoError::fromErrno(ECANCELED));
    if (alive)
        end(restored);
}

QCoro::Task<> RestoreView::restoreState()
{
    const QPointer<RestoreView> alive(this);
    const auto progress = std::make_shared<WorkProgress>();
    m_work = progress;
    const EarlierState state = m_content.states().at(m_states->chosen());
    const Restore restore = m_restore; // what runs shall not go away with the view
    const IoResult<void> restored = co_await restore(state, progress);
    if (alive)
        end(restored, u"Non è stato possibile ripristinare: "_s);
}

void RestoreView::end(const IoResult<void>& restored, const QString& sentence)
{
    const auto work = std::exchange(m_work, {});
    if (restored)
        Q_EMIT closed();
    else
        showReason(*m_error, work->isCancelled() ? QString() : sentence + restored.error().reason);
}

bool hasStateToLookAt(const QList<EarlierState>& states, const LookedAtStates& lookedAt)
{
    return std::ranges::any_of(states, [&lookedAt](const EarlierState& state) {
        return wantsAttention(state) && !lookedAt.contains(state.name);
    });
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "HelpIndexView.h"

#include "Assembly.h"
#include "ControlLook.h"
#include "HelpIndex.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SearchField.h"
#include "SheetWindow.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QApplication>
#include <QListView>
#include <QPainter>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QStyledItemDelegate>

namespace abissora {

namespace {

constexpr int largeIconSide = 44;
constexpr int titleMargin = 10;

/// Paints a row of the index: the title with room around it.
class HelpSectionDelegate final : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {2 * titleMargin + option.fontMetrics.horizontalAdvance(index.data().toString()),
                controlHeight(option.fontMetrics)};
    }
};

void HelpSectionDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QStyleOptionViewItem row(option);
    initStyleOption(&row, index);
    const QString title = std::exchange(row.text, QString());
    const QStyle& style = row.widget != nullptr ? *row.widget->style() : *QApplication::style();
    style.drawControl(QStyle::CE_ItemViewItem, &row, painter, row.widget);

    const Tokens& tokens = Tokens::of(row.palette);
    const QRect place = row.rect.adjusted(titleMargin, 0, -titleMargin, 0);
    painter->save();
    painter->setFont(row.font);
    painter->setPen(row.state.testFlag(QStyle::State_Selected) ? tokens.onFill : tokens.text);
    painter->drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                      row.fontMetrics.elidedText(title, Qt::ElideRight, place.width()));
    painter->restore();
}

} // namespace

HelpIndexView::HelpIndexView(HelpIndex& index, QWidget* parent)
    : QWidget(parent)
    , m_index(index)
    , m_search(new SearchField(u"Cerca nella guida…"_s))
    , m_list(new QListView)
    , m_noResult(new WrapLabel(TextStyle::Callout, &Tokens::secondaryText))
    , m_pages(new QStackedWidget)
{
    setObjectName(u"helpIndex"_s);
    m_search->setObjectName(u"helpSearch"_s);
    buildList();
    m_pages->addWidget(m_list);
    m_pages->addWidget(makeNoResult());
    setLayout(inColumn(metrics::spaceM - 1, {m_search, {m_pages, 1}},
                       {metrics::spaceM, metrics::spaceM, metrics::spaceM, metrics::spaceM}));
    // A screen reader or a dictation sets the text, which is no edit to the field.
    connect(m_search, &QLineEdit::textChanged, this, &HelpIndexView::search);
    connect(m_search, &QLineEdit::returnPressed, this, [this] {
        if (selectFirst())
            Q_EMIT readingRequested();
    });
    connect(m_search, &SearchField::resultsRequested, this, [this] {
        if (selectFirst())
            m_list->setFocus(Qt::TabFocusReason);
    });
    showSections();
}

bool HelpIndexView::selectFirst()
{
    if (m_index.filteredSections().isEmpty())
        return false;
    m_list->setCurrentIndex(m_titles.index(0));
    return true;
}

void HelpIndexView::focusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void HelpIndexView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    const qreal radius = qobject_cast<const SheetWindow*>(window()) != nullptr ? metrics::sheetRadius - 1 : 0;
    // Its lower left corner is the sheet's; the others lie outside.
    drawPanel(painter, QRectF(rect()).adjusted(0, -radius, radius, 0), radius, tokens.sidebar, {});
    drawVerticalHairline(painter, 0, height(), width() - hairlineWidth(painter), tokens.border);
}

void HelpIndexView::buildList()
{
    m_list->setObjectName(u"helpSections"_s);
    m_list->setAccessibleName(u"Indice della guida"_s);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setMouseTracking(true);
    m_list->setTabKeyNavigation(false);
    m_list->viewport()->setAutoFillBackground(false);
    setSelectionLook(*m_list, SelectionLook::Pill);
    m_list->setItemDelegate(new HelpSectionDelegate(m_list));
    m_list->setModel(&m_titles);
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this, &HelpIndexView::selectRow);
    // The row that the keyboard stands on need not be selected.
    connect(m_list, &QListView::activated, this, [this](const QModelIndex& row) {
        m_list->selectionModel()->select(row, QItemSelectionModel::ClearAndSelect);
    });
}

QWidget* HelpIndexView::makeNoResult()
{
    m_noResult->setObjectName(u"noResult"_s);
    m_noResult->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    auto* page = new QWidget;
    auto* icon = new IconView(symbolIcon(u"magnifyingglass"_s, NamedColor::secondary), largeIconSide);
    page->setLayout(inColumn(metrics::spaceM, {Stretch{1}, {icon, 0, Qt::AlignHCenter}, m_noResult, Stretch{2}},
                             {0, metrics::spaceXL, 0, metrics::spaceXL}));
    return page;
}

void HelpIndexView::search(const QString& text)
{
    m_index.setSearchText(text);
    showSections();
    Q_EMIT selectionChanged();
}

void HelpIndexView::selectRow()
{
    const QModelIndexList rows = m_list->selectionModel()->selectedRows();
    if (rows.isEmpty())
        return;
    m_index.select(m_index.filteredSections().at(rows.first().row()).id);
    Q_EMIT selectionChanged();
}

void HelpIndexView::showSections()
{
    const QList<HelpSection>& sections = m_index.filteredSections();
    const QSignalBlocker silent(m_list->selectionModel());
    QStringList titles;
    std::ranges::transform(sections, std::back_inserter(titles), &HelpSection::title);
    m_titles.setStringList(titles);
    if (const auto selected = std::ranges::find(sections, m_index.selection(), &HelpSection::id);
        selected != sections.end())
        m_list->setCurrentIndex(m_titles.index(static_cast<int>(selected - sections.begin())));
    m_noResult->setText(u"Nessun risultato per\n\"%1\""_s.arg(m_index.searchText()));
    m_pages->setCurrentIndex(sections.isEmpty() && !m_index.searchText().isEmpty() ? 1 : 0);
}

} // namespace abissora

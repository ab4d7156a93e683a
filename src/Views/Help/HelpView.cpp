// SPDX-License-Identifier: MIT
#include "HelpView.h"

#include "Assembly.h"
#include "Cards.h"
#include "EmptyState.h"
#include "HelpIndexView.h"
#include "HelpPage.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QShortcut>
#include <QStackedWidget>

namespace abissora {

namespace {

constexpr int indexWidth = 250;
constexpr int bookSide = 26;
constexpr int headerMargin = 18;

} // namespace

HelpView::HelpView(QList<HelpSection> sections, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_index(std::move(sections))
    , m_indexView(new HelpIndexView(m_index))
    , m_page(new HelpPage(opener))
    , m_pages(new QStackedWidget)
{
    setObjectName(u"helpView"_s);
    setLayout(inColumn(0, {makeHeader(), new Separator, {makeBody(), 1}}));
    connect(m_indexView, &HelpIndexView::selectionChanged, this, &HelpView::showSelection);
    connect(new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, m_indexView, &HelpIndexView::focusSearch);
    connect(m_indexView, &HelpIndexView::readingRequested, this, [this] {
        m_page->goToFirstMatch();
        m_page->setFocus(Qt::TabFocusReason);
    });
    showSelection();
}

QLayout* HelpView::makeHeader()
{
    auto* texts =
        inColumn(0, {new InkLabel(TextStyle::Headline, &Tokens::text, u"Aiuto"_s),
                     new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"Guida all'uso di Abissora"_s)});
    auto* book = new IconView(symbolIcon(u"book.fill"_s, NamedColor::blue), bookSide);
    return inRow(metrics::spaceM, {book, {texts, 1}},
                 {headerMargin, metrics::spaceM + 2, headerMargin, metrics::spaceM + 2});
}

QLayout* HelpView::makeBody()
{
    m_indexView->setFixedWidth(withText(indexWidth, fontMetrics()));
    auto* nothing = new EmptyState(u"book"_s, u"Seleziona un argomento"_s);
    nothing->setText(u"Scegli una sezione dall'indice a sinistra per leggere la guida."_s);
    m_pages->addWidget(m_page);
    m_pages->addWidget(nothing);
    return inRow(0, {m_indexView, {m_pages, 1}});
}

void HelpView::showSelection()
{
    const std::optional<HelpSection> section = m_index.selectedSection();
    m_page->setSearchText(m_index.searchText());
    if (section)
        m_page->setSection(*section);
    m_pages->setCurrentIndex(section ? 0 : 1);
}

} // namespace abissora

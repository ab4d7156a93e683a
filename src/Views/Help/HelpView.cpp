// SPDX-License-Identifier: MIT
#include "HelpView.h"

#include "Cards.h"
#include "EmptyState.h"
#include "HelpIndexView.h"
#include "HelpLoader.h"
#include "HelpPage.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "SymbolIcon.h"

#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int indexWidth = 250;
constexpr int bookSide = 26;
constexpr int headerMargin = 18;

} // namespace

HelpView::HelpView(Opener& opener, QWidget* parent)
    : HelpView(HelpLoader::load(), opener, parent)
{}

HelpView::HelpView(QList<HelpSection> sections, Opener& opener, QWidget* parent)
    : QWidget(parent)
    , m_index(std::move(sections))
    , m_indexView(new HelpIndexView(m_index))
    , m_page(new HelpPage(opener))
    , m_pages(new QStackedWidget)
{
    setObjectName(u"helpView"_s);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeHeader());
    layout->addWidget(new Separator);
    layout->addWidget(makeBody(), 1);
    connect(m_indexView, &HelpIndexView::selectionChanged, this, &HelpView::showSelection);
    connect(new QShortcut(QKeySequence::Find, this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut),
            &QShortcut::activated, m_indexView, &HelpIndexView::focusSearch);
    showSelection();
}

QWidget* HelpView::makeHeader()
{
    auto* texts = new QVBoxLayout;
    texts->setSpacing(0);
    texts->addWidget(new InkLabel(TextStyle::Headline, &Tokens::text, u"Aiuto"_s));
    texts->addWidget(new InkLabel(TextStyle::Caption, &Tokens::secondaryText, u"Guida all'uso di Abissora"_s));
    auto* header = new QWidget;
    auto* layout = new QHBoxLayout(header);
    layout->setContentsMargins(headerMargin, metrics::spaceM + 2, headerMargin, metrics::spaceM + 2);
    layout->setSpacing(metrics::spaceM);
    layout->addWidget(new IconView(symbolIcon(u"book.fill"_s, NamedColor::blue), bookSide));
    layout->addLayout(texts, 1);
    return header;
}

QWidget* HelpView::makeBody()
{
    m_indexView->setFixedWidth(withText(indexWidth, fontMetrics()));
    auto* nothing = new EmptyState(u"book"_s, u"Seleziona un argomento"_s);
    nothing->setText(u"Scegli una sezione dall'indice a sinistra per leggere la guida."_s);
    m_pages->addWidget(m_page);
    m_pages->addWidget(nothing);
    auto* body = new QWidget;
    auto* layout = new QHBoxLayout(body);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_indexView);
    layout->addWidget(m_pages, 1);
    return body;
}

void HelpView::showSelection()
{
    const std::optional<HelpSection> section = m_index.selectedSection();
    if (section)
        m_page->setSection(*section);
    m_pages->setCurrentIndex(section ? 0 : 1);
}

} // namespace abissora

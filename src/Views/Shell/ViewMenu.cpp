// SPDX-License-Identifier: MIT
#include "ViewMenu.h"

#include "Command.h"
#include "ContentView.h"
#include "Literals.h"
#include "SymbolIcon.h"

#include <QActionGroup>

namespace abissora {

ViewMenu::ViewMenu(ContentView& content, QWidget* parent)
    : QMenu(u"&Vista"_s, parent)
    , m_content(content)
{
    setObjectName(u"viewMenu"_s);
    auto* pages = new QActionGroup(this);
    const auto add = [&](const QString& symbol, const QString& text, Qt::Key key, auto show) {
        QAction* const page = addCommand(*this, text, Qt::CTRL | key, &content, show);
        page->setIcon(symbolIcon(symbol));
        page->setCheckable(true);
        pages->addAction(page);
        return page;
    };
    const auto addTab = [&](const QString& symbol, const QString& text, Qt::Key key) {
        const int tab = static_cast<int>(m_tabs.size());
        m_tabs.append(add(symbol, text, key, [&content, tab] { content.showTab(tab); }));
    };
    addTab(u"list.bullet"_s, u"&Attrezzatura"_s, Qt::Key_1);
    addTab(u"wrench"_s, u"&Manutenzione"_s, Qt::Key_2);
    addTab(u"chart.bar"_s, u"&Statistiche"_s, Qt::Key_3);
    addSeparator();
    m_settings = add(u"gear"_s, u"&Impostazioni"_s, Qt::Key_Comma, [&content] { content.showSettings(); });
    connect(&content, &ContentView::pageChanged, this, &ViewMenu::follow);
    follow();
}

void ViewMenu::follow()
{
    (m_content.isShowingSettings() ? m_settings : m_tabs.at(m_content.selectedTab()))->setChecked(true);
}

} // namespace abissora

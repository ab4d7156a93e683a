// SPDX-License-Identifier: MIT
#include "AppWindows.h"

#include "AboutView.h"
#include "BringForward.h"
#include "HelpWindow.h"
#include "Literals.h"
#include "ProgramFacts.h"
#include "TitlelessWindow.h"
#include "UpdateView.h"

namespace abissora {

AppWindows::AppWindows(const AppContext& context, QObject* parent)
    : QObject(parent)
    , m_context(context)
{}

AppWindows::~AppWindows()
{
    delete m_about;
    delete m_help;
    for (const QPointer<QWidget>& window : std::as_const(m_updates))
        delete window;
}

void AppWindows::openAbout()
{
    if (!m_about) {
        m_about =
            new TitlelessWindow(u"Informazioni su Abissora"_s, new AboutView({m_context.info, m_context.product}));
        m_about->setObjectName(u"aboutWindow"_s);
    }
    bringForward(*m_about, m_mainWindow);
}

void AppWindows::openHelp()
{
    if (!m_help)
        m_help = new HelpWindow(m_context.opener);
    bringForward(*m_help, m_mainWindow);
}

void AppWindows::openUpdate(const UpdateInfo& update)
{
    QPointer<QWidget>& window = m_updates[update];
    if (!window) {
        auto* view = new UpdateView(update, m_context.product.websiteURL, m_context.opener);
        window = new TitlelessWindow(u"Aggiornamento disponibile"_s, view);
        window->setObjectName(u"updateWindow"_s);
        connect(view, &UpdateView::closeRequested, window, &QWidget::close);
    }
    bringForward(*window, m_mainWindow);
}

void AppWindows::closeAll()
{
    for (QWidget* window : {m_about.data(), m_help.data()})
        if (window != nullptr)
            window->close();
    for (const QPointer<QWidget>& window : std::as_const(m_updates))
        if (window)
            window->close();
}

} // namespace abissora

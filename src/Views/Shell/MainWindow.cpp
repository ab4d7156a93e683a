// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "CloseShortcut.h"
#include "ContentView.h"
#include "EditMenu.h"
#include "EquipmentListView.h"
#include "Literals.h"
#include "SymbolIcon.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>

namespace abissora {

namespace {

constexpr QSize minimumWindowSize(1000, 700);

} // namespace

MainWindow::MainWindow(ScreenFactory& screens, EquipmentViewModel& equipment, const QString& stateFile, QWidget* parent)
    : QMainWindow(parent)
    , m_content(new ContentView(screens, equipment))
    , m_state(stateFile)
{
    setObjectName(u"mainWindow"_s);
    setWindowTitle(u"Abissora"_s);
    setMinimumSize(minimumWindowSize);
    setCentralWidget(m_content);
    m_content->list().focusContent();
    buildMenuBar();
    m_state.restore(*this, m_content->splitters());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_state.save(*this, m_content->splitters());
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

void MainWindow::buildMenuBar()
{
    QMenu* file = menuBar()->addMenu(u"&File"_s);
    QAction* add = file->addAction(symbolIcon(u"plus"_s), u"&Aggiungi"_s);
    add->setShortcut(QKeySequence::New);
    connect(add, &QAction::triggered, m_content, &ContentView::addEquipment);
    QAction* refresh = file->addAction(symbolIcon(u"arrow.clockwise"_s), u"A&ggiorna"_s);
    refresh->setShortcut(QKeySequence::Refresh);
    connect(refresh, &QAction::triggered, &m_content->list(), &EquipmentListView::refresh);
    file->addSeparator();
    QAction* close = file->addAction(u"&Chiudi"_s);
    close->setShortcut(closeKey());
    connect(close, &QAction::triggered, this, &QWidget::close);
    QAction* quit = file->addAction(u"&Esci"_s);
    quit->setShortcut(QKeySequence::Quit);
    quit->setShortcutContext(Qt::ApplicationShortcut);
    quit->setMenuRole(QAction::QuitRole);
    connect(quit, &QAction::triggered, qApp, &QApplication::closeAllWindows);

    auto* edit = new EditMenu(this);
    edit->addSeparator();
    QAction* find = edit->addAction(u"&Trova"_s);
    find->setShortcut(QKeySequence::Find);
    connect(find, &QAction::triggered, m_content, &ContentView::findInList);
    menuBar()->addMenu(edit);

    QMenu* help = menuBar()->addMenu(u"&Aiuto"_s);
    QAction* guide = help->addAction(symbolIcon(u"lightbulb"_s), u"Abissora &Help"_s);
    guide->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Question), QKeySequence(QKeySequence::HelpContents)});
    guide->setShortcutContext(Qt::ApplicationShortcut);
    connect(guide, &QAction::triggered, this, &MainWindow::helpRequested);
    addAction(guide); // so that sheets take it over
    QAction* about = help->addAction(u"&Informazioni su Abissora"_s);
    about->setMenuRole(QAction::AboutRole);
    connect(about, &QAction::triggered, this, &MainWindow::aboutRequested);
}

} // namespace abissora

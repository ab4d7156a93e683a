// SPDX-License-Identifier: MIT
#include "MainWindow.h"

#include "AppWindows.h"
#include "Command.h"
#include "ContentView.h"
#include "EquipmentListView.h"
#include "EquipmentMenu.h"
#include "EquipmentTableView.h"
#include "Literals.h"
#include "ScreenFactory.h"
#include "SymbolIcon.h"
#include "ViewMenu.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTextEdit>

namespace abissora {

namespace {

constexpr QSize minimumWindowSize(1000, 700);

bool isTextField(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
           qobject_cast<const QTextEdit*>(widget);
}

bool isReadOnly(const QWidget* field)
{
    return field->property("readOnly").toBool();
}

/// The platform's usual editing commands, for whatever text field has the focus.
class EditMenu final : public QMenu
{
public:
    explicit EditMenu(QWidget* parent);
    // The focus goes from here on, too.
    ~EditMenu() override { qApp->disconnect(this); }
    Q_DISABLE_COPY_MOVE(EditMenu)

private:
    void enableFor(QWidget* field);

    struct Command
    {
        QAction* action;
        const char* slot;
    };
    QList<Command> m_commands;
};

EditMenu::EditMenu(QWidget* parent)
    : QMenu(u"&Modifica"_s, parent)
{
    const auto add = [this](const QString& text, QKeySequence::StandardKey key, const char* slot) {
        QAction* action = addAction(text);
        action->setShortcut(key);
        action->setEnabled(false);
        connect(action, &QAction::triggered, this, [slot] {
            if (QWidget* field = QApplication::focusWidget(); isTextField(field))
                QMetaObject::invokeMethod(field, slot);
        });
        m_commands.append({action, slot});
    };
    add(u"&Annulla"_s, QKeySequence::Undo, "undo");
    add(u"&Ripeti"_s, QKeySequence::Redo, "redo");
    addSeparator();
    add(u"&Taglia"_s, QKeySequence::Cut, "cut");
    add(u"&Copia"_s, QKeySequence::Copy, "copy");
    add(u"&Incolla"_s, QKeySequence::Paste, "paste");
    addSeparator();
    add(u"&Seleziona tutto"_s, QKeySequence::SelectAll, "selectAll");
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // An open menu has the focus for a while; what it acts on is what had it before.
        if (!qobject_cast<QMenu*>(now))
            enableFor(now);
    });
}

void EditMenu::enableFor(QWidget* field)
{
    const bool text = isTextField(field);
    for (const Command& command : std::as_const(m_commands)) {
        const QByteArrayView slot(command.slot);
        const bool reads = slot == "copy" || slot == "selectAll";
        command.action->setEnabled(text && (reads || !isReadOnly(field)));
    }
}

/// While the menu bar has the keyboard, its keys are its own: a shortcut that one of its menus shows for another widget
/// would count as the bar's.
class MenuBarKeys final : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*menuBar*/, QEvent* event) override
    {
        if (event->type() != QEvent::ShortcutOverride)
            return false;
        event->accept();
        return true;
    }
};

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
    addFileMenu(screens);
    addEditMenu();
    menuBar()->addMenu(new EquipmentMenu(*m_content, this));
    menuBar()->installEventFilter(new MenuBarKeys(this));
    addViewMenu();
    addHelpMenu();
    m_state.restore(*this, m_content->splitters(), screen()->availableGeometry());
    m_content->list().table().setOwnColumnWidths(m_state.columnWidths());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    m_state.save(*this, m_content->splitters());
    m_state.saveColumnWidths(m_content->list().table().ownColumnWidths());
    QMainWindow::closeEvent(event);
    if (event->isAccepted())
        Q_EMIT closed();
}

void MainWindow::addFileMenu(const ScreenFactory& screens)
{
    QMenu& file = *menuBar()->addMenu(u"&File"_s);
    addCommand(file, u"&Aggiungi"_s, QKeySequence::New, m_content, &ContentView::addEquipment)
        ->setIcon(symbolIcon(u"plus"_s));
    addCommand(file, u"A&ggiorna"_s, QKeySequence::Refresh, &m_content->list(), &EquipmentListView::refresh)
        ->setIcon(symbolIcon(u"arrow.clockwise"_s));
    file.addSeparator();
    addCommand(file, u"&Importa…"_s, {}, this, &MainWindow::importRequested)
        ->setIcon(symbolIcon(u"square.and.arrow.down"_s));
    addCommand(file, u"Esp&orta…"_s, Qt::CTRL | Qt::Key_E, this, &MainWindow::exportRequested)
        ->setIcon(symbolIcon(u"square.and.arrow.up"_s));
    addCommand(file, u"&Stampa…"_s, QKeySequence::Print, m_content, &ContentView::openPrint)
        ->setIcon(symbolIcon(u"printer"_s));
    file.addSeparator();
    addCommand(file, u"Crea &una copia…"_s, {}, this, &MainWindow::copyRequested)->setIcon(symbolIcon(u"doc.on.doc"_s));
    QAction* restore = addCommand(file, u"&Ripristina…"_s, {}, m_content, &ContentView::openRestore);
    const auto showWhetherToLook = [restore, &screens] {
        restore->setIcon(screens.hasStateToLookAt() ? symbolIcon(u"exclamationmark.triangle.fill"_s, NamedColor::orange)
                                                    : symbolIcon(u"clock.arrow.circlepath"_s));
    };
    connect(&file, &QMenu::aboutToShow, restore, showWhetherToLook);
    showWhetherToLook();
    file.addSeparator();
    addCommand(file, u"&Chiudi"_s, closeKey(), this, &QWidget::close);
    QAction* quit = addCommand(file, u"&Esci"_s, QKeySequence::Quit, qApp, &QApplication::closeAllWindows);
    quit->setShortcutContext(Qt::ApplicationShortcut);
    quit->setMenuRole(QAction::QuitRole);
}

void MainWindow::addEditMenu()
{
    auto* edit = new EditMenu(this);
    edit->addSeparator();
    addCommand(*edit, u"&Trova"_s, QKeySequence::Find, m_content, &ContentView::findInList);
    menuBar()->addMenu(edit);
}

void MainWindow::addViewMenu()
{
    menuBar()->addMenu(new ViewMenu(*m_content, this));
    const auto step = [this](int places, const QList<QKeySequence>& keys) {
        auto* const command = new QAction(this);
        command->setShortcuts(keys);
        connect(command, &QAction::triggered, m_content, [this, places] { m_content->stepTab(places); });
        addAction(command);
    };
    step(1, {Qt::CTRL | Qt::Key_Tab, Qt::CTRL | Qt::Key_PageDown});
    step(-1, {Qt::CTRL | Qt::SHIFT | Qt::Key_Tab, Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab, Qt::CTRL | Qt::Key_PageUp});
}

void MainWindow::addHelpMenu()
{
    QMenu& help = *menuBar()->addMenu(u"&Aiuto"_s);
    QAction* guide = addCommand(help, u"Abissora &Help"_s, {}, this, &MainWindow::helpRequested);
    guide->setIcon(symbolIcon(u"lightbulb"_s));
    guide->setShortcuts({QKeySequence(Qt::CTRL | Qt::Key_Question), QKeySequence(QKeySequence::HelpContents)});
    guide->setShortcutContext(Qt::ApplicationShortcut);
    addAction(guide); // so that sheets take it over
    addCommand(help, u"&Informazioni su Abissora"_s, {}, this, &MainWindow::aboutRequested)
        ->setMenuRole(QAction::AboutRole);
}

} // namespace abissora

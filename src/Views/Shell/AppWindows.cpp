// SPDX-License-Identifier: MIT
#include "AppWindows.h"

#include "AboutView.h"
#include "Buttons.h"
#include "HelpView.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "UpdateView.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>
#include <QWindow>

namespace abissora {

namespace {

constexpr QSize leastHelpSize(880, 640);

void closeByKeyboard(QWidget& window)
{
    auto* close = new QAction(&window);
    close->setShortcut(closeKey());
    QObject::connect(close, &QAction::triggered, &window, &QWidget::close);
    window.addAction(close);
}

/// Closed by Escape, once nothing in it has another use for that: the search empties itself first.
class HelpWindow final : public QMainWindow
{
protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() == Qt::Key_Escape)
            close();
        else
            QMainWindow::keyPressEvent(event);
    }
};

/// The guide in a window of its own. It deletes itself when it closes, so that it opens afresh.
QWidget* makeHelpWindow(const ProgramFacts& program, Opener& opener)
{
    auto* window = new HelpWindow;
    window->setObjectName(u"helpWindow"_s);
    window->setWindowTitle(u"Aiuto"_s);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setMinimumSize(leastHelpSize);
    window->setCentralWidget(new HelpView(program.guide(), opener));
    closeByKeyboard(*window);
    return window;
}

/// A window of its own without a title bar, as large as its content: rounded, with a mark to close it in a corner,
/// moved by dragging its ground, closed by Escape too. It deletes itself when it closes.
class TitlelessWindow final : public QDialog
{
public:
    /// Takes the content over. `title` is what the system calls the window.
    TitlelessWindow(const QString& title, QWidget* content);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
};

TitlelessWindow::TitlelessWindow(const QString& title, QWidget* content)
    : QDialog(nullptr, Qt::Window | Qt::FramelessWindowHint)
{
    setWindowTitle(title);
    setAttribute(Qt::WA_DeleteOnClose);
    if (windowsCanBeTranslucent())
        setAttribute(Qt::WA_TranslucentBackground);

    auto* close = new IconButton(symbolIcon(u"xmark"_s), u"Chiudi"_s);
    close->setObjectName(u"closeWindow"_s);
    connect(close, &QAbstractButton::clicked, this, &QWidget::close);
    closeByKeyboard(*this);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXS, metrics::spaceXS, metrics::spaceXS, metrics::spaceXS);
    layout->setSpacing(0);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->addWidget(content, 1);
    layout->insertWidget(0, close, 0, Qt::AlignRight);
    setTabOrder(content, close);
}

void TitlelessWindow::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && windowHandle() != nullptr)
        windowHandle()->startSystemMove();
    QDialog::mousePressEvent(event);
}

void TitlelessWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::sheetRadius, tokens.window, tokens.border);
}

void TitlelessWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (!windowsCanBeTranslucent())
        setMask(roundedRegion(rect(), metrics::sheetRadius));
}

void showOver(QWidget& window, const QWidget* over)
{
    if (window.isVisible())
        return;
    if (over != nullptr) {
        window.ensurePolished();
        window.adjustSize();
        QRect frame(QPoint(), window.size());
        frame.moveCenter(over->geometry().center());
        window.move(frame.topLeft());
    }
    window.show();
}

} // namespace

void bringForward(QWidget& window, const QWidget* over)
{
    showOver(window, over);
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.raise();
    window.activateWindow();
}

QKeySequence closeKey()
{
    return {Qt::CTRL | Qt::Key_W};
}

AppWindows::AppWindows(const ProgramFacts& program, Opener& opener, QObject* parent)
    : QObject(parent)
    , m_program(program)
    , m_opener(opener)
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
        m_about = new TitlelessWindow(u"Informazioni su Abissora"_s, new AboutView(m_program));
        m_about->setObjectName(u"aboutWindow"_s);
    }
    bringForward(*m_about, m_mainWindow);
}

void AppWindows::openHelp()
{
    if (!m_help)
        m_help = makeHelpWindow(m_program, m_opener);
    bringForward(*m_help, m_mainWindow);
}

void AppWindows::openUpdate(const UpdateInfo& update)
{
    if (QApplication::activeModalWidget() != nullptr) {
        m_waiting = update;
        qApp->installEventFilter(this);
        return;
    }
    QPointer<QWidget>& window = m_updates[update];
    if (!window) {
        auto* view = new UpdateView(update, m_program.product.websiteURL, m_opener);
        auto* offer = new TitlelessWindow(u"Aggiornamento disponibile"_s, view);
        offer->setObjectName(u"updateWindow"_s);
        offer->setAttribute(Qt::WA_ShowWithoutActivating);
        connect(view, &UpdateView::closeRequested, offer, &QWidget::close);
        connect(offer, &QDialog::finished, this, &AppWindows::updateDismissed);
        window = offer;
    }
    showOver(*window, m_mainWindow);
    window->raise();
}

bool AppWindows::eventFilter(QObject* watched, QEvent* event)
{
    // A modal window that closes; its owner may open the next one at once.
    if (event->type() == QEvent::Hide && watched->isWidgetType())
        QMetaObject::invokeMethod(this, &AppWindows::openWaitingUpdate, Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
}

void AppWindows::openWaitingUpdate()
{
    if (!m_waiting || QApplication::activeModalWidget() != nullptr)
        return;
    qApp->removeEventFilter(this);
    const UpdateInfo update = *m_waiting;
    m_waiting.reset();
    openUpdate(update);
}

void AppWindows::closeUpdates()
{
    m_waiting.reset();
    qApp->removeEventFilter(this);
    for (const QPointer<QWidget>& window : std::as_const(m_updates))
        if (window)
            window->close();
}

void AppWindows::closeAll()
{
    for (QWidget* window : {m_about.data(), m_help.data()})
        if (window != nullptr)
            window->close();
    closeUpdates();
}

} // namespace abissora

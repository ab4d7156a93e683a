// SPDX-License-Identifier: MIT
#include "SheetWindow.h"

#include "AccessKeys.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "Tokens.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLayout>
#include <QPainter>
#include <QScreen>

namespace abissora {

namespace {

constexpr int distanceToScreen = metrics::spaceL;

/// Dims a window for as long as it exists.
class Scrim final : public QWidget
{
public:
    Scrim(QWidget* window, int cornerRadius)
        : QWidget(window)
        , m_radius(cornerRadius)
    {
        setObjectName(u"scrim"_s);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setGeometry(window->rect());
        window->installEventFilter(this);
        raise();
        show();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == parentWidget() && event->type() == QEvent::Resize)
            setGeometry(parentWidget()->rect());
        return QWidget::eventFilter(watched, event);
    }
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        drawPanel(painter, rect(), m_radius, Tokens::of(palette()).scrim, {});
    }

private:
    int m_radius;
};

} // namespace

SheetWindow::SheetWindow(QWidget* parent)
    : QDialog(parent != nullptr ? parent->window() : nullptr, Qt::Dialog | Qt::FramelessWindowHint)
{
    setWindowModality(Qt::WindowModal);
    if (windowsCanBeTranslucent())
        setAttribute(Qt::WA_TranslucentBackground);
    if (QWidget* const below = mainWindow()) {
        below->installEventFilter(this);
        takeOverCommands(*below);
    }
}

SheetWindow::~SheetWindow()
{
    delete m_scrim;
}

void SheetWindow::done(int result)
{
    uncover();
    QDialog::done(result);
}

void SheetWindow::setVisible(bool visible)
{
    if (visible && !isVisible()) {
        place();
        cover();
    }
    const bool hadTheFocus = !visible && parentWidget() != nullptr && QApplication::activeWindow() == this;
    QDialog::setVisible(visible);
    if (visible) {
        if (QWidget* const first = firstFocus())
            first->setFocus(Qt::TabFocusReason);
    } else {
        uncover();
        if (hadTheFocus)
            parentWidget()->activateWindow();
        if (m_opener && m_opener->isVisible())
            m_opener->setFocus(Qt::PopupFocusReason);
    }
}

QWidget* SheetWindow::mainWindow() const
{
    QWidget* window = parentWidget();
    while (qobject_cast<SheetWindow*>(window) != nullptr && window->parentWidget() != nullptr)
        window = window->parentWidget()->window();
    return window;
}

void SheetWindow::takeOverCommands(const QWidget& below)
{
    for (QAction* action : below.actions()) {
        if (action->shortcutContext() == Qt::ApplicationShortcut)
            addAction(action);
    }
}

void SheetWindow::place()
{
    const QWidget* const below = mainWindow();
    const QRect room = below != nullptr ? below->geometry() : screen()->availableGeometry();
    const QSize most(room.width() - 2 * distanceToScreen, room.height() - 2 * distanceToScreen);
    ensurePolished();
    resize(preferredSize().boundedTo(most).expandedTo(minimumSizeHint()));
    QRect frame(QPoint(), size());
    frame.moveCenter(room.center());
    move(frame.topLeft());
}

void SheetWindow::cover()
{
    if (parentWidget() == nullptr)
        return;
    m_opener = parentWidget()->focusWidget();
    const bool sheetBelow = qobject_cast<SheetWindow*>(parentWidget()) != nullptr;
    m_scrim = new Scrim(parentWidget(), sheetBelow ? metrics::sheetRadius : 0);
}

void SheetWindow::uncover()
{
    delete m_scrim;
}

bool SheetWindow::event(QEvent* event)
{
    const bool handled = QDialog::event(event);
    if (event->type() == QEvent::WindowDeactivate)
        setAccessKeysShown(*this, false);
    if (event->type() == QEvent::LayoutRequest && isVisible())
        place();
    return handled;
}

bool SheetWindow::eventFilter(QObject* watched, QEvent* event)
{
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (moved && watched == mainWindow() && isVisible())
        place();
    return QDialog::eventFilter(watched, event);
}

void SheetWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const Tokens& tokens = Tokens::of(palette());
    drawPanel(painter, rect(), metrics::sheetRadius, tokens.window, tokens.border);
}

void SheetWindow::resizeEvent(QResizeEvent* event)
{
    QDialog::resizeEvent(event);
    if (!windowsCanBeTranslucent())
        setMask(roundedRegion(rect(), metrics::sheetRadius));
}

void SheetWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt)
        setAccessKeysShown(*this, true);
    QDialog::keyPressEvent(event);
}

void SheetWindow::keyReleaseEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Alt)
        setAccessKeysShown(*this, false);
    QDialog::keyReleaseEvent(event);
}

} // namespace abissora

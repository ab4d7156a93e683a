// SPDX-License-Identifier: MIT
#include "DesktopProgressPanel.h"

#include "ProgressSheet.h"

#include <QApplication>
#include <QMainWindow>
#include <QPointer>
#include <QTimer>

namespace abissora {

namespace {

constexpr std::chrono::milliseconds betweenLooks(100);

/// Where sheets open now. No window may be active, as between a file dialog and what it stood over.
QWidget* windowInFront()
{
    if (QWidget* const modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto main = std::ranges::find_if(windows, [](const QWidget* window) {
        return window->isVisible() && qobject_cast<const QMainWindow*>(window) != nullptr;
    });
    return main != windows.end() ? *main : nullptr;
}

class SheetShowing final : public QObject, public ProgressPanel::Showing
{
public:
    SheetShowing(QString title, std::shared_ptr<WorkProgress> progress, std::chrono::milliseconds patience)
        : m_title(std::move(title))
        , m_progress(std::move(progress))
        , m_below(windowInFront())
    {
        connect(&m_timer, &QTimer::timeout, this, &SheetShowing::look);
        m_timer.start(patience);
    }
    ~SheetShowing() override
    {
        if (!m_sheet)
            return;
        m_sheet->disconnect(this);
        m_sheet->accept();
    }
    Q_DISABLE_COPY_MOVE(SheetShowing)

private:
    void look()
    {
        m_timer.setInterval(betweenLooks);
        if (m_progress->isCancelled()) {
            m_timer.stop();
            return;
        }
        if (!m_below)
            m_below = windowInFront();
        if (!m_sheet && m_below && !isCovered())
            open();
        if (m_sheet)
            m_sheet->setFraction(m_progress->fraction());
    }

    /// By a dialog or a menu that came later; they would hold the keys back from the sheet.
    [[nodiscard]] bool isCovered() const
    {
        const QWidget* const modal = QApplication::activeModalWidget();
        return (modal != nullptr && modal != m_below) || QApplication::activePopupWidget() != nullptr;
    }

    void open()
    {
        m_sheet = new ProgressSheet(m_title, m_below);
        m_sheet->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_sheet, &QDialog::rejected, this, [this] { m_progress->cancel(); });
        m_sheet->open();
    }

    QString m_title;
    std::shared_ptr<WorkProgress> m_progress;
    QPointer<QWidget> m_below;
    QPointer<ProgressSheet> m_sheet;
    QTimer m_timer;
};

} // namespace

DesktopProgressPanel::DesktopProgressPanel(std::chrono::milliseconds patience)
    : m_patience(patience)
{}

std::unique_ptr<ProgressPanel::Showing> DesktopProgressPanel::show(const QString& title,
                                                                   std::shared_ptr<WorkProgress> progress)
{
    return std::make_unique<SheetShowing>(title, std::move(progress), m_patience);
}

} // namespace abissora

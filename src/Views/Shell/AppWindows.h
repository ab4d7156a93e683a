// SPDX-License-Identifier: MIT
#pragma once

#include "ProgramFacts.h"
#include "UpdateInfo.h"

#include <QKeySequence>
#include <QPointer>
#include <QWidget>

namespace abissora {

class Opener;

/// Shows a window, in the middle of another one where that is given, or brings it to the front where it stands.
void bringForward(QWidget& window, const QWidget* over = nullptr);

/// Ctrl+W wherever the program runs; the toolkit's own choice for closing differs from desktop to desktop.
[[nodiscard]] QKeySequence closeKey();

/// The windows beside the main one. There is one "about" and one "help" window, and one "update" window for each
/// distinct offer: opening what is open already brings it forward.
class AppWindows : public QObject
{
    Q_OBJECT

public:
    /// `opener` must outlive it.
    AppWindows(const ProgramFacts& program, Opener& opener, QObject* parent = nullptr);
    ~AppWindows() override;

    /// New windows stand over this one; it may die before them.
    void setMainWindow(QWidget* window) { m_mainWindow = window; }

    void openAbout();
    void openHelp();
    /// The window comes without the keyboard, as somebody may be typing, and not before every sheet and other modal
    /// window is closed.
    void openUpdate(const UpdateInfo& update);
    /// Takes every offer back, also one that waits.
    void closeUpdates();

    void closeAll();

Q_SIGNALS:
    /// The person closed an offer.
    void updateDismissed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void openWaitingUpdate();

    ProgramFacts m_program;
    Opener& m_opener;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_about;
    QPointer<QWidget> m_help;
    QHash<UpdateInfo, QPointer<QWidget>> m_updates;
    std::optional<UpdateInfo> m_waiting; ///< for the last modal window to close
};

} // namespace abissora

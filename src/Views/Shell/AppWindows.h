// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "UpdateInfo.h"

#include <QPointer>
#include <QWidget>

namespace abissora {

/// The windows beside the main one. There is one "about" and one "help" window, and one "update" window for each
/// distinct offer: opening what is open already brings it forward.
class AppWindows : public QObject
{
    Q_OBJECT

public:
    explicit AppWindows(const AppContext& context, QObject* parent = nullptr);
    ~AppWindows() override;

    /// New windows stand over this one; it may die before them.
    void setMainWindow(QWidget* window) { m_mainWindow = window; }

    void openAbout();
    void openHelp();
    void openUpdate(const UpdateInfo& update);

    void closeAll();

private:
    AppContext m_context;
    QPointer<QWidget> m_mainWindow;
    QPointer<QWidget> m_about;
    QPointer<QWidget> m_help;
    QHash<UpdateInfo, QPointer<QWidget>> m_updates;
};

} // namespace abissora

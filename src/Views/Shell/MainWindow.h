// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "WindowState.h"

#include <QMainWindow>

namespace abissora {

class ContentView;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `stateFile` keeps its size across starts.
    MainWindow(const AppContext& context, const QString& stateFile, QWidget* parent = nullptr);

    [[nodiscard]] ContentView& content() { return *m_content; }

Q_SIGNALS:
    void aboutRequested();
    void helpRequested();
    /// The window was closed by the person.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void buildMenuBar();

    ContentView* m_content;
    WindowState m_state;
};

} // namespace abissora

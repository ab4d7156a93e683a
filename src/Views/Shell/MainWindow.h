// SPDX-License-Identifier: MIT
#pragma once

#include "WindowState.h"

#include <QMainWindow>

namespace abissora {

class ContentView;
class EquipmentViewModel;
class ScreenFactory;

class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `stateFile` keeps its size across starts. The other two must outlive it.
    MainWindow(ScreenFactory& screens, EquipmentViewModel& equipment, const QString& stateFile,
               QWidget* parent = nullptr);

    [[nodiscard]] ContentView& content() { return *m_content; }

Q_SIGNALS:
    void aboutRequested();
    void helpRequested();
    void importRequested();
    void exportRequested();
    void copyRequested();
    /// The window was closed by the person.
    void closed();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void addFileMenu(const ScreenFactory& screens);
    void addEditMenu();
    void addViewMenu();
    void addHelpMenu();

    ContentView* m_content;
    WindowState m_state;
};

} // namespace abissora

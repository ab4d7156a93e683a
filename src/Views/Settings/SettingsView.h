// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

#include <QPointer>
#include <QScrollArea>

class QVBoxLayout;

namespace abissora {

class SheetWindow;
class UpdatesGroup;

/// The settings, in groups below one another. Every control stores its value at once.
class SettingsView : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsView(const AppContext& context, QWidget* parent = nullptr);

    [[nodiscard]] bool showingTypeManagement() const;
    [[nodiscard]] bool showingHelp() const;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    [[nodiscard]] QWidget* makeHeader();
    void addGroups(QVBoxLayout* groups);
    void manageTypes();
    void showHelp();
    void offerUpdate();
    void resetToDefaults();
    void openSheet(SheetWindow* sheet);

    AppContext m_context;
    UpdatesGroup* m_updates;
    QPointer<SheetWindow> m_sheet;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "FilePanel.h"

namespace abissora {

class PanelDialog;

/// The desktop's own file dialogs, modal to the active window. They open at the folder used last.
class DesktopFilePanel final : public FilePanel
{
public:
    [[nodiscard]] std::optional<QString> pickFile(const FilePanelRequest& request) override;
    [[nodiscard]] std::optional<SaveTarget> pickTarget(const SavePanelRequest& request) override;

private:
    void openAtLastFolder(PanelDialog& dialog) const;

    QString m_lastFolder;
};

} // namespace abissora

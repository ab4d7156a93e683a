// SPDX-License-Identifier: MIT
#pragma once

#include "FilePanel.h"

namespace abissora {

/// The desktop's own file dialog, modal to the active window. It opens at the folder used last.
class DesktopFilePanel final : public FilePanel
{
public:
    [[nodiscard]] std::optional<QString> pickFile(const FilePanelRequest& request) override;

private:
    QString m_lastFolder;
};

} // namespace abissora

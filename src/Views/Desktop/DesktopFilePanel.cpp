// SPDX-License-Identifier: MIT
#include "DesktopFilePanel.h"

#include <QApplication>
#include <QFileDialog>
#include <QStandardPaths>

namespace abissora {

std::optional<QString> DesktopFilePanel::pickFile(const FilePanelRequest& request)
{
    QFileDialog dialog(QApplication::activeWindow(), request.title);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setMimeTypeFilters(request.contentTypes);
    dialog.setLabelText(QFileDialog::Accept, request.confirmLabel);
    // File dialogs have no line for a message; screen readers read it as the dialog's description.
    dialog.setAccessibleDescription(request.message);
    dialog.setDirectory(m_lastFolder.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                               : m_lastFolder);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    m_lastFolder = dialog.directory().path();
    return dialog.selectedFiles().first();
}

} // namespace abissora

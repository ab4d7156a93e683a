// SPDX-License-Identifier: MIT
#include "DesktopFilePanel.h"

#include "Alert.h"
#include "Literals.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QStandardPaths>

namespace abissora {

namespace {

/// In the program's language; the system's description of a type is in the user's.
QString filterFor(const QString& contentType)
{
    const QMimeType type = QMimeDatabase().mimeTypeForName(contentType);
    const QString name = contentType == "application/pdf"_L1 ? u"Documenti PDF"_s : type.comment();
    return u"%1 (%2)"_s.arg(name, type.globPatterns().join(u' '));
}

bool accepts(const FilePanelRequest& request, const QString& path)
{
    return request.accepts == nullptr || request.accepts(path);
}

/// Stays open when what was chosen is refused.
class OpenDialog final : public QFileDialog
{
public:
    OpenDialog(QWidget* parent, const FilePanelRequest& request)
        : QFileDialog(parent, request.title)
        , m_request(request)
    {
        QStringList filters;
        for (const QString& type : request.contentTypes)
            filters.append(filterFor(type));
        setAcceptMode(AcceptOpen);
        setFileMode(ExistingFile);
        setNameFilters(filters);
        setLabelText(Accept, request.confirmLabel);
        // File dialogs have no line for a message; screen readers read it as the dialog's description.
        setAccessibleDescription(request.message);
    }

protected:
    void accept() override
    {
        const QStringList files = selectedFiles();
        const bool chosen = !files.isEmpty() && QFileInfo(files.first()).exists() && !QFileInfo(files.first()).isDir();
        // A dialog of the platform's own has closed by now.
        const bool isOwn = findChild<QWidget*>(u"fileNameEdit"_s) != nullptr;
        if (isOwn && chosen && !accepts(m_request, files.first()))
            Alert::notice(this, windowTitle(), m_request.refusal);
        else
            QFileDialog::accept();
    }

private:
    const FilePanelRequest& m_request;
};

/// Nothing when the person gave up. A dialog of the platform's own opens again for as long as its choice is refused.
std::optional<QString> choiceOf(OpenDialog& dialog, const FilePanelRequest& request)
{
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        const QString path = dialog.selectedFiles().first();
        if (accepts(request, path))
            return path;
        Alert(Alert::Kind::Notice, request.title, request.refusal, QApplication::activeWindow()).exec();
    }
    return std::nullopt;
}

} // namespace

std::optional<QString> DesktopFilePanel::pickFile(const FilePanelRequest& request)
{
    OpenDialog dialog(QApplication::activeWindow(), request);
    for (const QString& folder :
         {m_lastFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), QDir::homePath()}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
            dialog.setDirectory(folder);
            break;
        }
    }
    auto chosen = choiceOf(dialog, request);
    if (chosen)
        m_lastFolder = dialog.directory().path();
    return chosen;
}

} // namespace abissora

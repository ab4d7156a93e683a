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

/// Takes no typed path of another content either; a file without an extension is judged by what it holds.
class OpenDialog final : public QFileDialog
{
public:
    OpenDialog(QWidget* parent, const FilePanelRequest& request)
        : QFileDialog(parent, request.title)
        , m_contentTypes(request.contentTypes)
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
        const bool chosen = !files.isEmpty() && QFileInfo(files.first()).isFile();
        // A dialog of the platform's own keeps to the filter by itself, and has closed by now.
        const bool isOwn = findChild<QWidget*>(u"fileNameEdit"_s) != nullptr;
        if (!chosen || !isOwn || isWanted(files.first()))
            QFileDialog::accept();
        else
            refuse(QFileInfo(files.first()).fileName());
    }

private:
    [[nodiscard]] bool isWanted(const QString& path) const
    {
        const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
        return std::ranges::any_of(m_contentTypes, [&type](const QString& wanted) { return type.inherits(wanted); });
    }

    void refuse(const QString& name)
    {
        Alert::notice(this, windowTitle(), u"«%1» non è un documento PDF."_s.arg(name));
    }

    QStringList m_contentTypes;
};

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
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    m_lastFolder = dialog.directory().path();
    return dialog.selectedFiles().first();
}

} // namespace abissora

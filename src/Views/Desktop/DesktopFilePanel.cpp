// SPDX-License-Identifier: MIT
#include "DesktopFilePanel.h"

#include "Alert.h"
#include "Assembly.h"
#include "DateFormat.h"
#include "FilePanelModel.h"
#include "Labels.h"
#include "Literals.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMimeDatabase>
#include <QStandardPaths>
#include <QTreeView>

namespace abissora {

namespace {

constexpr QSize leastSize(820, 540);

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
        // A dialog of the platform's own has no line for a message: it is only the description there.
        setAccessibleDescription(request.message);
        // Files are chosen here, not renamed or deleted.
        setOption(ReadOnly);
        if (isOwn())
            furnish();
    }

protected:
    void accept() override
    {
        const QStringList files = selectedFiles();
        const bool chosen = !files.isEmpty() && QFileInfo(files.first()).exists() && !QFileInfo(files.first()).isDir();
        // A dialog of the platform's own has closed by now.
        if (isOwn() && chosen && !accepts(m_request, files.first()))
            Alert::notice(this, windowTitle(), m_request.refusal);
        else
            QFileDialog::accept();
    }

private:
    /// The toolkit's, not the platform's.
    [[nodiscard]] bool isOwn() const { return findChild<QWidget*>(u"fileNameEdit"_s) != nullptr; }
    void furnish();
    void addMessage();

    const FilePanelRequest& m_request;
};

void OpenDialog::furnish()
{
    addMessage();
    setProxyModel(new FilePanelModel(DateFormat::userLocale(), this));
    if (auto* list = findChild<QTreeView*>(u"treeView"_s)) {
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(FilePanelModel::Name, QHeaderView::Stretch);
    }
    // Its one entry, to remove a place, has no Italian text.
    if (auto* places = findChild<QWidget*>(u"sidebar"_s))
        places->setContextMenuPolicy(Qt::NoContextMenu);
    if (auto* newFolder = findChild<QWidget*>(u"newFolderButton"_s))
        newFolder->hide();
    resize(size().expandedTo(leastSize));
}

void OpenDialog::addMessage()
{
    auto* grid = qobject_cast<QGridLayout*>(layout());
    if (grid == nullptr)
        return;
    struct Cell
    {
        QLayoutItem* item;
        int row, column, rows, columns;
    };
    QList<Cell> cells;
    while (grid->count() > 0) {
        Cell cell{};
        grid->getItemPosition(0, &cell.row, &cell.column, &cell.rows, &cell.columns);
        cell.item = grid->takeAt(0);
        cells.append(cell);
    }
    const int columns = grid->columnCount();
    auto* message = named(new WrapLabel(TextStyle::BodyMedium, &Tokens::text, m_request.message), u"message");
    grid->addWidget(message, 0, 0, 1, columns);
    for (const Cell& cell : cells)
        grid->addItem(cell.item, cell.row + 1, cell.column, cell.rows, cell.columns, cell.item->alignment());
}

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

// SPDX-License-Identifier: MIT
#include "DesktopFilePanel.h"

#include "Alert.h"
#include "Assembly.h"
#include "Buttons.h"
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
    static const QHash<QString, QString> names{
        {u"application/pdf"_s, u"Documenti PDF"_s}, {u"application/zip"_s, u"Copie del registro"_s},
        {u"application/json"_s, u"Registri"_s},     {u"text/csv"_s, u"Tabelle CSV"_s},
        {u"text/plain"_s, u"File di testo"_s},
    };
    return u"%1 (%2)"_s.arg(names.value(contentType, type.comment()), type.globPatterns().join(u' '));
}

QString patternsOf(const QStringList& contentTypes)
{
    QStringList patterns;
    for (const QString& type : contentTypes)
        patterns += QMimeDatabase().mimeTypeForName(type).globPatterns();
    return patterns.join(u' ');
}

/// Whether a sandbox shows the file at this path because the person chose it. It shows that one name and no other.
bool isGranted(const QString& path)
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return path.startsWith("/run/flatpak/doc/"_L1) || (!runtime.isEmpty() && path.startsWith(runtime + "/doc/"_L1));
}

bool accepts(const FilePanelRequest& request, const QString& path)
{
    return request.accepts == nullptr || request.accepts(path);
}

} // namespace

/// The toolkit's dialog with what the program adds to it, or the platform's own.
class PanelDialog : public QFileDialog
{
public:
    PanelDialog(QWidget* parent, const QString& title, const QString& message)
        : QFileDialog(parent, title)
    {
        // A dialog of the platform's own has no line for a message: it is only the description there.
        setAccessibleDescription(message);
        // Files are chosen here, not renamed or deleted.
        setOption(ReadOnly);
        if (isOwn())
            furnish(message);
    }

protected:
    /// The toolkit's, not the platform's.
    [[nodiscard]] bool isOwn() const { return findChild<QWidget*>(u"fileNameEdit"_s) != nullptr; }

private:
    void furnish(const QString& message);
    void addMessage(const QString& message);
};

void PanelDialog::furnish(const QString& message)
{
    addMessage(message);
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

void PanelDialog::addMessage(const QString& message)
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
    auto* line = named(new WrapLabel(TextStyle::BodyMedium, &Tokens::text, message), u"message");
    grid->addWidget(line, 0, 0, 1, columns);
    for (const Cell& cell : cells)
        grid->addItem(cell.item, cell.row + 1, cell.column, cell.rows, cell.columns, cell.item->alignment());
}

namespace {

/// Stays open when what was chosen is refused.
class OpenDialog final : public PanelDialog
{
public:
    OpenDialog(QWidget* parent, const FilePanelRequest& request)
        : PanelDialog(parent, request.title, request.message)
        , m_request(request)
    {
        QStringList filters;
        for (const QString& type : request.contentTypes)
            filters.append(filterFor(type));
        if (filters.size() > 1)
            filters.prepend(u"Tutti questi (%1)"_s.arg(patternsOf(request.contentTypes)));
        setAcceptMode(AcceptOpen);
        setFileMode(ExistingFile);
        setNameFilters(filters);
        setLabelText(Accept, request.confirmLabel);
    }

protected:
    void accept() override
    {
        const QStringList files = selectedFiles();
        const bool chosen = !files.isEmpty() && QFileInfo::exists(files.first()) && !QFileInfo(files.first()).isDir();
        // A dialog of the platform's own has closed by now.
        if (isOwn() && chosen && !accepts(m_request, files.first()))
            Alert::notice(this, windowTitle(), m_request.refusal);
        else
            QFileDialog::accept();
    }

private:
    const FilePanelRequest& m_request;
};

/// Asks in the program's own words before a file is replaced.
class SaveDialog final : public PanelDialog
{
public:
    SaveDialog(QWidget* parent, const SavePanelRequest& request)
        : PanelDialog(parent, request.title, request.message)
        , m_formats(request.formats)
    {
        for (const SaveFormat& format : m_formats)
            m_filters.append(u"%1 (*.%2)"_s.arg(format.name, format.suffix));
        setAcceptMode(AcceptSave);
        setFileMode(AnyFile);
        setNameFilters(m_filters);
        setLabelText(Accept, request.confirmLabel);
        selectFile(request.suggestedName + u'.' + m_formats.first().suffix);
        // The platform's own dialogs ask by themselves.
        setOption(DontConfirmOverwrite, isOwn());
        connect(this, &QFileDialog::filterSelected, this, &SaveDialog::renameForFormat);
    }

    [[nodiscard]] SaveTarget target() const
    {
        const qsizetype selected = m_filters.indexOf(selectedNameFilter());
        const QString chosen = selectedFiles().value(0);
        SaveTarget target = saveTarget(chosen, m_formats, std::max<qsizetype>(selected, 0));
        // With a suffix it would be a name that the person never gets to see.
        if (isGranted(chosen))
            target.path = chosen;
        return target;
    }

protected:
    void accept() override
    {
        const QFileInfo chosen(selectedFiles().value(0));
        const QFileInfo file(target().path);
        const bool isTaken = isOwn() && !chosen.isDir() && !chosen.fileName().isEmpty(); // by us, else by the dialog
        if (isTaken && !file.dir().exists())
            Alert::notice(this, windowTitle(), u"La cartella «%1» non esiste."_s.arg(file.path()));
        else if (isTaken && file.isDir())
            Alert::notice(this, windowTitle(), u"«%1» è una cartella."_s.arg(file.fileName()));
        else if (isTaken && file.exists())
            askToReplace(file.fileName());
        else
            QFileDialog::accept();
    }

private:
    void askToReplace(const QString& name)
    {
        Alert* alert = Alert::ask(this, windowTitle(), u"Esiste già un file di nome «%1». Sostituirlo?"_s.arg(name),
                                  [this] { QFileDialog::accept(); });
        alert->destructiveButton()->setText(u"Sostituisci"_s);
    }

    /// A format that is selected gives the name its suffix in the place of another one's.
    void renameForFormat(const QString& filter)
    {
        const qsizetype format = m_filters.indexOf(filter);
        const QFileInfo chosen(selectedFiles().value(0));
        const bool hasOne = std::ranges::any_of(m_formats, [&chosen](const SaveFormat& known) {
            return chosen.suffix().compare(known.suffix, Qt::CaseInsensitive) == 0;
        });
        if (format >= 0 && hasOne)
            selectFile(chosen.completeBaseName() + u'.' + m_formats.at(format).suffix);
    }

    QList<SaveFormat> m_formats;
    QStringList m_filters;
};

/// Nothing when the person gave up. A dialog of the platform's own opens again for as long as its choice is refused.
std::optional<QString> choiceOf(OpenDialog& dialog, const FilePanelRequest& request)
{
    while (dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty()) {
        QString path = dialog.selectedFiles().constFirst();
        if (accepts(request, path))
            return path;
        Alert(Alert::Kind::Notice, request.title, request.refusal, QApplication::activeWindow()).exec();
    }
    return std::nullopt;
}

} // namespace

void DesktopFilePanel::openAtLastFolder(PanelDialog& dialog) const
{
    for (const QString& folder :
         {m_lastFolder, QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), QDir::homePath()}) {
        if (!folder.isEmpty() && QFileInfo(folder).isDir()) {
            dialog.setDirectory(folder);
            break;
        }
    }
}

std::optional<QString> DesktopFilePanel::pickFile(const FilePanelRequest& request)
{
    OpenDialog dialog(QApplication::activeWindow(), request);
    openAtLastFolder(dialog);
    auto chosen = choiceOf(dialog, request);
    if (chosen)
        m_lastFolder = dialog.directory().path();
    return chosen;
}

std::optional<SaveTarget> DesktopFilePanel::pickTarget(const SavePanelRequest& request)
{
    SaveDialog dialog(QApplication::activeWindow(), request);
    openAtLastFolder(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    m_lastFolder = dialog.directory().path();
    return dialog.target();
}

} // namespace abissora

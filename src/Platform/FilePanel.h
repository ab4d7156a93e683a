// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <optional>

namespace abissora {

struct FilePanelRequest
{
    QString title;
    QString message;
    QString confirmLabel;
    /// Media types the panel offers, e.g. "application/pdf".
    QStringList contentTypes;
    /// Whether the file holds what is asked for; without it every file does.
    bool (*accepts)(const QString& path) = nullptr;
    /// What the person is told of a file that is not accepted, before they choose again.
    QString refusal;

    friend bool operator==(const FilePanelRequest&, const FilePanelRequest&) = default;
};

/// One of the forms in which a file can be written.
struct SaveFormat
{
    QString name;   ///< as the person reads it: "Calendario"
    QString suffix; ///< without the full stop

    friend bool operator==(const SaveFormat&, const SaveFormat&) = default;
};

struct SavePanelRequest
{
    QString title;
    QString message;
    QString confirmLabel;
    /// Without a suffix and without a folder.
    QString suggestedName;
    /// At least one; the first is the one offered. Several may have one suffix.
    QList<SaveFormat> formats;

    friend bool operator==(const SavePanelRequest&, const SavePanelRequest&) = default;
};

struct SaveTarget
{
    QString path;
    qsizetype format = 0; ///< the place among the request's

    friend bool operator==(const SaveTarget&, const SaveTarget&) = default;
};

/// What a chosen name stands for: its suffix tells the format; `chosen` is the format that was selected beside it,
/// which counts among several of one suffix and gives its own to a name with none of them.
[[nodiscard]] inline SaveTarget saveTarget(const QString& path, const QList<SaveFormat>& formats, qsizetype chosen)
{
    const auto hasSuffix = [&path](const SaveFormat& format) {
        return path.endsWith(u'.' + format.suffix, Qt::CaseInsensitive);
    };
    if (hasSuffix(formats.at(chosen)))
        return {path, chosen};
    const auto named = std::ranges::find_if(formats, hasSuffix);
    if (named != formats.end())
        return {path, named - formats.begin()};
    return {path + u'.' + formats.at(chosen).suffix, chosen};
}

/// The platform's modal panels for opening one existing file, never a folder, and for naming one to be written.
class FilePanel
{
public:
    virtual ~FilePanel() = default;

    /// Blocks until dismissed. Nothing when the person did not confirm; else a file that the request accepts.
    [[nodiscard]] virtual std::optional<QString> pickFile(const FilePanelRequest& request) = 0;

    /// Blocks until dismissed. Nothing when the person did not confirm; else a file in a folder that exists. Of a file
    /// that exists the person has said that it may be replaced.
    [[nodiscard]] virtual std::optional<SaveTarget> pickTarget(const SavePanelRequest& request) = 0;

    /// The grant that a sandboxing platform attaches to a picked file: true when access was granted and endAccess must
    /// give it back. Platforms without such grants answer false.
    [[nodiscard]] virtual bool beginAccess(const QString& /*path*/) { return false; }
    virtual void endAccess(const QString& /*path*/) {}
};

} // namespace abissora

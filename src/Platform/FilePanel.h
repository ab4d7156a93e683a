// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
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

/// The platform's modal panel for opening one existing file, never a folder.
class FilePanel
{
public:
    virtual ~FilePanel() = default;

    /// Blocks until dismissed. Nothing when the person did not confirm; else a file that the request accepts.
    [[nodiscard]] virtual std::optional<QString> pickFile(const FilePanelRequest& request) = 0;

    /// The grant that a sandboxing platform attaches to a picked file: true when access was granted and endAccess must
    /// give it back. Platforms without such grants answer false.
    [[nodiscard]] virtual bool beginAccess(const QString& /*path*/) { return false; }
    virtual void endAccess(const QString& /*path*/) {}
};

} // namespace abissora

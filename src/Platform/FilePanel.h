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

    friend bool operator==(const FilePanelRequest&, const FilePanelRequest&) = default;
};

/// The platform's modal panel for opening one existing file, never a folder.
class FilePanel
{
public:
    virtual ~FilePanel() = default;

    /// Blocks until dismissed. Nothing when the person did not confirm.
    [[nodiscard]] virtual std::optional<QString> pickFile(const FilePanelRequest& request) = 0;

    /// The grant that a sandboxing platform attaches to a picked file: true when access was granted and endAccess must
    /// give it back. Platforms without such grants answer false.
    [[nodiscard]] virtual bool beginAccess(const QString& /*path*/) { return false; }
    virtual void endAccess(const QString& /*path*/) {}
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDocumentStore.h"
#include "MaintenanceRecords.h"
#include "Opener.h"

#include <QWidget>

namespace abissora {

class LookButton;

/// One document of a record: opens or replaces the file when there is one, else takes one in. A name whose file is gone
/// counts as none.
class DocumentLink : public QWidget
{
    Q_OBJECT

public:
    /// The services must outlive it.
    DocumentLink(DocumentSlot slot, MaintenanceDocumentStore& documents, Opener& opener, QWidget* parent = nullptr);

    void setFileName(const std::optional<QString>& name);

Q_SIGNALS:
    /// The person picked a file: its stored name, or nothing when none came of it.
    void picked(const std::optional<QString>& name);
    /// The file of this name was deleted, to make way for another.
    void removed(const QString& name);

private:
    void refresh();
    void open();
    void replace();
    void upload();

    MaintenanceDocumentStore& m_documents;
    Opener& m_opener;
    std::optional<QString> m_name;
    LookButton* m_open;
    LookButton* m_replace;
    LookButton* m_upload;
};

} // namespace abissora

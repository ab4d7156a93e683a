// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceDocumentStore.h"
#include "MaintenanceRecords.h"
#include "Opener.h"

#include <QWidget>

namespace abissora {

class IconLabel;
class LookButton;

/// One document of the record in a form. Files are copied and deleted at once; what the form stored and never handed on
/// can be taken back.
class DocumentField : public QWidget
{
    Q_OBJECT

public:
    /// The services must outlive it.
    DocumentField(DocumentSlot slot, MaintenanceDocumentStore& documents, Opener& opener, QWidget* parent = nullptr);

    void setFileName(const std::optional<QString>& name);
    [[nodiscard]] const std::optional<QString>& fileName() const { return m_name; }

    /// Deletes the file that was attached here.
    void discardAttached();

private:
    void refresh();
    void open();
    void remove();
    void attach();

    MaintenanceDocumentStore& m_documents;
    Opener& m_opener;
    std::optional<QString> m_name;
    std::optional<QString> m_attached; ///< stored by this field
    IconLabel* m_file;
    LookButton* m_open;
    LookButton* m_remove;
    LookButton* m_attach;
};

} // namespace abissora

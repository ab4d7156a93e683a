// SPDX-License-Identifier: MIT
#pragma once

#include "MaintenanceRecords.h"

#include <QWidget>

namespace abissora {

class LookButton;

/// The buttons of one document of a record: it can be opened or taken away while its file is there, else one can be
/// taken in. The focus stays with them.
class DocumentControl : public QWidget
{
    Q_OBJECT

public:
    enum class Place { Form, History };

    DocumentControl(DocumentSlot slot, Place place, QWidget* parent = nullptr);

    void setPresent(bool present);
    /// Says of which record it is, as the buttons of all records have the same names.
    void setRecord(const QString& which);

Q_SIGNALS:
    void openClicked();
    void takeAwayClicked();
    void takeInClicked();

private:
    void lookLikeAForm(DocumentSlot slot);
    void lookLikeLinks(DocumentSlot slot);

    QString m_label;
    QWidget* m_file = nullptr; ///< says that there is one
    LookButton* m_open = nullptr;
    LookButton* m_takeAway = nullptr;
    LookButton* m_takeIn = nullptr;
};

} // namespace abissora

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

Q_SIGNALS:
    void openClicked();
    void takeAwayClicked();
    void takeInClicked();

private:
    void lookLikeAForm(DocumentSlot slot);
    void lookLikeLinks(DocumentSlot slot);

    QWidget* m_file = nullptr; ///< says that there is one
    LookButton* m_open;
    LookButton* m_takeAway;
    LookButton* m_takeIn;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

class LookButton;

/// What can be done with the item.
class DetailActions : public QWidget
{
    Q_OBJECT

public:
    explicit DetailActions(QWidget* parent = nullptr);

    void setActive(bool active);
    void focusAddMaintenance();

Q_SIGNALS:
    void editClicked();
    void addMaintenanceClicked();
    void toggleActiveClicked();
    void deleteClicked();

private:
    LookButton* m_addMaintenance;
    LookButton* m_toggleActive;
};

} // namespace abissora

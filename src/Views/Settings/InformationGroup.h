// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"
#include "CoalescedUpdate.h"
#include "SettingsGroupBox.h"

namespace abissora {

class SettingsInfoRow;

/// What the program says of itself, its credits and its website.
class InformationGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    explicit InformationGroup(const AppContext& context, QWidget* parent = nullptr);

protected:
    void showEvent(QShowEvent* event) override;

private:
    SettingsInfoRow* addRow(const QString& label);
    [[nodiscard]] QLayout* makeWebsiteLine();
    void redraw();

    AppContext m_context;
    QList<SettingsInfoRow*> m_facts;
    SettingsInfoRow* m_types;
    CoalescedUpdate m_update;
};

} // namespace abissora

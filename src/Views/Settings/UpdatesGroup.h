// SPDX-License-Identifier: MIT
#pragma once

#include "SettingsGroupBox.h"
#include "SettingsViewModel.h"
#include "UpdateCheckerViewModel.h"

namespace abissora {

class IconLabel;
struct CheckOutcome;

/// The check at start and the check at once, with one line about how the last one ended.
class UpdatesGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// Both references must outlive it.
    UpdatesGroup(SettingsViewModel& settings, UpdateCheckerViewModel& updates, QWidget* parent = nullptr);

    /// A check that ends after the group is gone, or after forgetFeedback(), says nothing.
    QCoro::Task<> checkForUpdatesNow();
    void forgetFeedback();

private:
    class CheckButton;

    void setFeedback(const CheckOutcome& outcome);

    UpdateCheckerViewModel& m_updates;
    CheckButton* m_check;
    IconLabel* m_feedback;
    int m_visit = 0;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "SettingsGroupBox.h"
#include "SettingsViewModel.h"
#include "UpdateCheckerViewModel.h"

namespace abissora {

class CheckButton;
class IconLabel;

/// The check at start and the check at once, with one line about how the last one ended.
class UpdatesGroup : public SettingsGroupBox
{
    Q_OBJECT

public:
    /// Both must outlive it.
    UpdatesGroup(SettingsViewModel& settings, UpdateCheckerViewModel& updates, QWidget* parent = nullptr);

    [[nodiscard]] const std::optional<QString>& checkFeedback() const { return m_checkFeedback; }
    [[nodiscard]] bool feedbackIsError() const { return m_feedbackIsError; }

    /// A check that ends after the group is gone, or after forgetFeedback(), says nothing.
    QCoro::Task<> checkForUpdatesNow();
    void forgetFeedback();

private:
    void setFeedback(const std::optional<QString>& text, bool isError);
    void redraw();

    UpdateCheckerViewModel& m_updates;
    CheckButton* m_check;
    IconLabel* m_feedback;
    std::optional<QString> m_checkFeedback;
    bool m_feedbackIsError = false;
    int m_visit = 0;
};

} // namespace abissora

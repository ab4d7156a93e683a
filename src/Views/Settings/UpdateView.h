// SPDX-License-Identifier: MIT
#pragma once

#include "AppContext.h"

#include <QWidget>

namespace abissora {

class GroupBox;
class PrimaryButton;

/// Offers a newer release, in a window or a sheet of its own. Everything the release says is shown as plain text.
class UpdateView : public QWidget
{
    Q_OBJECT

public:
    UpdateView(const AppContext& context, const UpdateInfo& update, QWidget* parent = nullptr);

    [[nodiscard]] const UpdateInfo& update() const { return m_update; }

Q_SIGNALS:
    /// The person has decided.
    void closeRequested();

protected:
    /// The button to download has the focus at first.
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] GroupBox* makeNotes() const;
    void download();

    UpdateInfo m_update;
    Opener& m_opener;
    QUrl m_address;
    PrimaryButton* m_download;
};

} // namespace abissora

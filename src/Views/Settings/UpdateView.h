// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateInfo.h"

#include <QCoroTask>
#include <QWidget>

namespace abissora {

class GroupBox;
class Opener;
class PrimaryButton;

/// Offers a newer release, in a window or a sheet of its own. Everything the release says is shown as plain text.
class UpdateView : public QWidget
{
    Q_OBJECT

public:
    /// `website` is opened when the release names no web page of its own; `opener` must outlive it.
    UpdateView(const UpdateInfo& update, const QUrl& website, Opener& opener, QWidget* parent = nullptr);

    [[nodiscard]] const UpdateInfo& update() const { return m_update; }

Q_SIGNALS:
    /// The person has decided.
    void closeRequested();

protected:
    /// The button to download has the focus at first.
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] GroupBox* makeNotes() const;
    QCoro::Task<> download();

    UpdateInfo m_update;
    Opener& m_opener;
    QUrl m_address;
    PrimaryButton* m_download;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "UpdateOffer.h"

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

Q_SIGNALS:
    /// The person has decided.
    void closeRequested();

protected:
    /// The notes have the focus at first: what somebody was just typing does nothing there.
    void showEvent(QShowEvent* event) override;

private:
    [[nodiscard]] GroupBox* makeNotes();
    [[nodiscard]] QWidget* makeFailure();
    QCoro::Task<> download();

    UpdateOffer m_offer;
    Opener& m_opener;
    PrimaryButton* m_download;
    QWidget* m_failure = nullptr;
    bool m_isOpening = false;
};

} // namespace abissora

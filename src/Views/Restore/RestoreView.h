// SPDX-License-Identifier: MIT
#pragma once

#include "CopyActions.h"
#include "RestoreContent.h"

#include <QTimer>
#include <QWidget>
#include <functional>

namespace abissora {

class ElidedLabel;
class LookedAtStates;
class PlainButton;
class PrimaryButton;
class ScreenPage;
class StateList;
class ViewSheet;
class WrapLabel;

/// The way back to an earlier state: the states at the left, at the right what the chosen one would bring, take and
/// change.
class RestoreView : public QWidget
{
    Q_OBJECT

public:
    /// Puts the state in the place of the present one, unless it is cancelled soon enough; a failure says why nothing
    /// came of it. May end the view.
    using Restore =
        std::function<QCoro::Task<IoResult<void>>(const EarlierState&, const std::shared_ptr<WorkProgress>&)>;

    /// What the sources refer to, and `lookedAt`, must outlive it.
    RestoreView(const RestoreContent::Sources& sources, LookedAtStates& lookedAt, Restore restore,
                QWidget* parent = nullptr);
    ~RestoreView() override;

    /// Lets the person choose a copy of a register as well; `copies` may go away first.
    void offerCopies(CopyActions& copies);

    /// In a sheet titled "Ripristina" over the window of `over`.
    [[nodiscard]] static ViewSheet* makeSheet(const RestoreContent::Sources& sources, LookedAtStates& lookedAt,
                                              Restore restore, QWidget* over, CopyActions* copies = nullptr);

Q_SIGNALS:
    /// The person wants no more of it, or has what she wanted.
    void closed();

private:
    [[nodiscard]] QLayout* makeBody();
    [[nodiscard]] QLayout* makeFooter();
    [[nodiscard]] QWidget* firstFocus() const;
    void showState(qsizetype index);
    /// In the place of what is on show, but where it comes soon only what it becomes.
    void showWhenSlow(const RestorePreview& beginning);
    void showCompared(const RestorePreview& preview);
    void showPreview(const RestorePreview& preview);
    void restoreChosen();
    void chooseCopy();
    QCoro::Task<> openCopy(QString path);
    QCoro::Task<> restoreCopy();
    QCoro::Task<> restoreState();
    /// How what was under way has ended.
    void end(const IoResult<void>& restored, const QString& sentence = {});

    RestoreContent m_content;
    LookedAtStates& m_lookedAt;
    Restore m_restore;
    StateList* m_states;
    ScreenPage* m_page;
    ElidedLabel* m_title;
    WrapLabel* m_subtitle;
    QWidget* m_card = nullptr;
    WrapLabel* m_error;
    PlainButton* m_cancel;
    PrimaryButton* m_restoreButton;
    PlainButton* m_fromFile;
    QList<QWidget*> m_withState; ///< what is shown only beside a state
    QWidget* m_nothing = nullptr;
    QPointer<CopyActions> m_copies;
    std::optional<OpenedCopy> m_copy;     ///< chosen instead of a state
    std::shared_ptr<WorkProgress> m_work; ///< under way
    QTimer m_patience;                    ///< runs until what is being compared is told to be slow
    RestorePreview m_beginning;           ///< of what is being compared
    bool m_isComparing = false;
};

/// Whether there is a state that holds what could not be read or stored, and that nobody has looked at.
[[nodiscard]] bool hasStateToLookAt(const QList<EarlierState>& states, const LookedAtStates& lookedAt);

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

#include <functional>

namespace abissora {

class DestructiveButton;
class PlainButton;
class WrapLabel;

/// A question asks before something is destroyed: accepted by "Elimina", rejected by "Annulla", which is the default
/// button and answers Escape. A notice has one button, "OK", which rejects.
class Alert : public SheetWindow
{
    Q_OBJECT

public:
    enum class Kind { Question, Notice };

    Alert(Kind kind, const QString& title, const QString& message, QWidget* parent = nullptr);

    /// Both open an alert over the window of `place`; it deletes itself when it closes. `accepted` is not called once
    /// `place` is gone.
    static Alert* ask(QWidget* place, const QString& title, const QString& message,
                      const std::function<void()>& accepted);
    static Alert* notice(QWidget* place, const QString& title, const QString& message);

    [[nodiscard]] QString message() const;
    [[nodiscard]] PlainButton* safeButton() const { return m_safe; }
    [[nodiscard]] DestructiveButton* destructiveButton() const { return m_destructive; }

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    WrapLabel* m_message;
    PlainButton* m_safe;
    DestructiveButton* m_destructive;
};

} // namespace abissora

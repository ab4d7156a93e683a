// SPDX-License-Identifier: MIT
#pragma once

#include "Literals.h"
#include "SheetWindow.h"

namespace abissora {

class DestructiveButton;
class PlainButton;
class WrapLabel;

/// Asks before something is destroyed: accepted by "Elimina", rejected by "Annulla", which is the default button and
/// answers Escape. As a notice it has one button, which rejects.
class Alert : public SheetWindow
{
    Q_OBJECT

public:
    explicit Alert(QWidget* parent = nullptr);

    void setTitle(const QString& title);
    void setMessage(const QString& message);
    [[nodiscard]] QString message() const;
    void makeNotice(const QString& buttonText = u"OK"_s);

    [[nodiscard]] PlainButton* safeButton() const { return m_safe; }
    [[nodiscard]] DestructiveButton* destructiveButton() const { return m_destructive; }

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;

private:
    WrapLabel* m_title;
    WrapLabel* m_message;
    PlainButton* m_safe;
    DestructiveButton* m_destructive;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "SheetWindow.h"

class QLabel;
class QVBoxLayout;

namespace abissora {

class PlainButton;
class PrimaryButton;
class ScrollPane;

/// A form or a screen over its window: a header with a button to leave, the title and, once given a text, a primary
/// button; below it a body that scrolls, with a foot that stays. Escape leaves, Ctrl+Return presses the primary button.
class Sheet : public SheetWindow
{
    Q_OBJECT

public:
    explicit Sheet(const QString& title, QWidget* parent = nullptr);

    void setTitle(const QString& title);

    /// "Annulla" until told otherwise; it rejects the dialog.
    [[nodiscard]] PlainButton* cancelButton() const { return m_cancel; }
    /// Hidden until it is given a text here. Pressing it closes nothing by itself.
    void setPrimaryText(const QString& text, QChar accessKey = {});
    [[nodiscard]] PrimaryButton* primaryButton() const { return m_primary; }

    [[nodiscard]] QVBoxLayout* body() const { return m_body; }
    /// What the body scrolls in.
    [[nodiscard]] ScrollPane* scrollArea() const { return m_scroll; }
    /// Stands below the body, in sight wherever that is scrolled to. Lines of it stand below one another.
    void addToFoot(QWidget* line);
    /// For content that scrolls by itself: takes the place of the scrolling body.
    void setContent(QWidget* content);

    /// Without one the sheet takes the size of its content, at the width of a form.
    void setPreferredSize(QSize size);
    /// Has the focus when the sheet opens; else the first field of the body has it.
    void setFirstField(QWidget* field);

Q_SIGNALS:
    void primaryClicked();

protected:
    [[nodiscard]] QSize preferredSize() const override;
    [[nodiscard]] QWidget* firstFocus() const override;
    /// Puts the cursor into a field of the body, with its text selected, and brings it into view.
    void goTo(QWidget* field);

private:
    [[nodiscard]] QWidget* makeHeader();
    [[nodiscard]] QWidget* makeFoot();
    void pressPrimary();

    QLabel* m_title;
    PlainButton* m_cancel;
    PrimaryButton* m_primary;
    ScrollPane* m_scroll;
    QVBoxLayout* m_body;
    QVBoxLayout* m_footLines;
    QWidget* m_foot;
    QWidget* m_content = nullptr;
    QPointer<QWidget> m_firstField;
    QSize m_preferred;
};

} // namespace abissora

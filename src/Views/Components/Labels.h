// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"
#include "TypeScale.h"

#include <QLabel>
#include <memory>

namespace abissora {

class WordWidths;

/// A plain-text label in one step of the type scale and one colour of the tokens, following the scheme and the text
/// size.
class InkLabel : public QLabel
{
    Q_OBJECT

public:
    using Ink = QColor Tokens::*;

    InkLabel(TextStyle style, Ink ink, const QString& text = {}, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void dress();

    TextStyle m_style;
    Ink m_ink;
    bool m_dressing = false;
};

/// Takes the width it is given and breaks its text to it, inside words where there is no other way.
class WrapLabel : public InkLabel
{
    Q_OBJECT

public:
    WrapLabel(TextStyle style, Ink ink, const QString& text = {}, QWidget* parent = nullptr);
    ~WrapLabel() override;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override { return heightOf(text(), width); }
    /// How high the label is with another text.
    [[nodiscard]] int heightOf(const QString& text, int width) const;
    /// In how many lines it breaks another text; nothing when only a layout can tell.
    [[nodiscard]] std::optional<int> linesOf(const QString& text, int width) const;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    struct Lines;
    [[nodiscard]] const Lines& lines();

    std::shared_ptr<WordWidths> m_words;
    std::unique_ptr<Lines> m_lines; ///< as they were painted last
};

/// One line that gives way: what does not fit is read in the tool tip and, in full, by screen readers.
class ElidedLabel : public InkLabel
{
    Q_OBJECT

public:
    ElidedLabel(TextStyle style, Ink ink, QWidget* parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
    /// It wants to be at most as wide with another text.
    [[nodiscard]] int mostWidthOf(const QString& text) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

/// The text as a tool tip that shows it as it is: a tool tip would take "<b>" for markup.
[[nodiscard]] QString toolTipText(const QString& text);

} // namespace abissora

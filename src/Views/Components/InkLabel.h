// SPDX-License-Identifier: MIT
#pragma once

#include "Tokens.h"
#include "TypeScale.h"

#include <QLabel>

namespace abissora {

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

} // namespace abissora

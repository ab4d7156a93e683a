// SPDX-License-Identifier: MIT
#pragma once

#include "InkLabel.h"

namespace abissora {

/// One line of information: the label at the left, the value, which can be selected, at the right.
class SettingsInfoRow : public QWidget
{
    Q_OBJECT

public:
    explicit SettingsInfoRow(const QString& label, InkLabel::Ink valueColor = &Tokens::secondaryText,
                             TextStyle style = TextStyle::Body, QWidget* parent = nullptr);

    [[nodiscard]] QString label() const { return m_label->text(); }
    [[nodiscard]] QString value() const { return m_value->text(); }
    void setValue(const QString& value) { m_value->setText(value); }

private:
    InkLabel* m_label;
    InkLabel* m_value;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "FormRow.h"

#include <optional>

namespace abissora {

/// An amount of money. Takes no key and no pasted text that cannot become a number.
class CostField : public CheckedField
{
    Q_OBJECT

public:
    explicit CostField(QWidget* parent = nullptr);

    void setCost(double cost);
    /// The very number that was set while its text stands; nothing while the text is an unfinished number.
    [[nodiscard]] std::optional<double> cost() const;

    bool commit() override;

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    double m_cost = 0;
    QString m_shown;
};

} // namespace abissora

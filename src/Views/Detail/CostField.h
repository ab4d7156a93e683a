// SPDX-License-Identifier: MIT
#pragma once

#include "CostText.h"
#include "FormRow.h"

#include <optional>

namespace abissora {

/// An amount of money. What was typed or pasted stands as it was; what is no amount is marked, as soon as typing on
/// cannot make one of it, else when the field is left. Below 0 there are only amounts where a record holds one already.
class CostField : public CheckedField
{
    Q_OBJECT

public:
    explicit CostField(QWidget* parent = nullptr);

    void setCost(double cost);
    /// Passed over beside the amount, besides the usual ones.
    void setCurrencySymbol(const QString& symbol);
    /// The very number that was set while its text stands; nothing while the text is no amount.
    [[nodiscard]] std::optional<double> cost() const;

    bool commit() override;

protected:
    void focusOutEvent(QFocusEvent* event) override;

private:
    void check();

    costText::Reading m_reading;
    double m_cost = 0;
    QString m_shown;
};

} // namespace abissora

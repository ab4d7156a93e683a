// SPDX-License-Identifier: MIT
#include "CostField.h"

#include "Literals.h"

#include <QFocusEvent>
#include <limits>

namespace abissora {

namespace {

QString noAmount()
{
    return u"Importo non valido: scrivi un numero, per esempio 45,50"_s;
}

} // namespace

CostField::CostField(QWidget* parent)
    : CheckedField(parent)
{
    setPlaceholderText(u"0,00"_s);
    setMaxLength(std::numeric_limits<int>::max());
    connect(this, &QLineEdit::textChanged, this, &CostField::check);
}

void CostField::setCost(double cost)
{
    m_cost = cost;
    m_reading.takesNegative = cost < 0;
    m_shown = costText::show(cost);
    setText(m_shown);
    setCursorPosition(0);
}

void CostField::setCurrencySymbol(const QString& symbol)
{
    m_reading.currencySymbol = symbol;
}

std::optional<double> CostField::cost() const
{
    return text() == m_shown ? m_cost : costText::parse(text(), m_reading);
}

void CostField::check()
{
    if (cost())
        setError({});
    else if (!costText::isUnfinished(text(), m_reading))
        setError(noAmount());
}

bool CostField::commit()
{
    const bool isAmount = cost().has_value();
    setError(isAmount ? QString() : noAmount());
    return isAmount;
}

void CostField::focusOutEvent(QFocusEvent* event)
{
    CheckedField::focusOutEvent(event);
    // A popup menu of the field's own is no farewell.
    if (event->reason() != Qt::PopupFocusReason)
        commit();
}

} // namespace abissora

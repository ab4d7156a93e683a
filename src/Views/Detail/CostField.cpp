// SPDX-License-Identifier: MIT
#include "CostField.h"

#include "CostText.h"
#include "Literals.h"

#include <QFocusEvent>
#include <QValidator>

namespace abissora {

namespace {

/// Removing characters may leave an unfinished number behind, and so may one typed character; a longer insertion has
/// to make a number.
class CostValidator final : public QValidator
{
public:
    explicit CostValidator(QLineEdit& field)
        : QValidator(&field)
    {
        connect(&field, &QLineEdit::textChanged, this, [this](const QString& text) { m_before = text; });
    }

    State validate(QString& text, int&) const override
    {
        if (costText::parse(text))
            return Acceptable;
        const bool isTyped = text.size() == m_before.size() + 1 && costText::isUnfinished(text);
        return isTyped || isRemainder(text) ? Intermediate : Invalid;
    }

private:
    /// Whether the text is what stood there before with some characters removed.
    [[nodiscard]] bool isRemainder(const QString& text) const
    {
        qsizetype from = 0;
        for (const QChar c : text) {
            from = m_before.indexOf(c, from) + 1;
            if (from == 0)
                return false;
        }
        return text.size() < m_before.size();
    }

    QString m_before;
};

} // namespace

CostField::CostField(QWidget* parent)
    : CheckedField(parent)
{
    setPlaceholderText(u"0,00"_s);
    setValidator(new CostValidator(*this));
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (cost())
            setError({});
    });
}

void CostField::setCost(double cost)
{
    m_cost = cost;
    m_shown = costText::show(cost);
    setText(m_shown);
    setCursorPosition(0);
}

std::optional<double> CostField::cost() const
{
    return text() == m_shown ? m_cost : costText::parse(text());
}

bool CostField::commit()
{
    const bool isAmount = cost().has_value();
    setError(isAmount ? QString() : u"Importo non valido: scrivi un numero, per esempio 45,50"_s);
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

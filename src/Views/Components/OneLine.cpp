// SPDX-License-Identifier: MIT
#include "OneLine.h"

#include "Literals.h"

#include <QLineEdit>
#include <QRegularExpression>
#include <QValidator>

namespace abissora {

namespace {

/// Refuses nothing.
class OneLine final : public QValidator
{
public:
    using QValidator::QValidator;

    void setStored(const QString& text) { m_stored = text; }

    State validate(QString& text, int& cursor) const override
    {
        if (text == m_stored)
            return Acceptable;
        static const QRegularExpression lineBreak(u"\\r\\n|[\\n\\r\\v\\f\\x{0085}\\x{2028}\\x{2029}]"_s);
        QString before = text.left(cursor);
        before.replace(lineBreak, u" "_s);
        text = before + text.mid(cursor).replace(lineBreak, u" "_s);
        cursor = static_cast<int>(before.size());
        return Acceptable;
    }

private:
    QString m_stored;
};

} // namespace

void keepOneLine(QLineEdit& field)
{
    field.setValidator(new OneLine(&field));
}

void setStoredText(QLineEdit& field, const QString& text)
{
    if (auto* const oneLine = dynamic_cast<OneLine*>(const_cast<QValidator*>(field.validator())))
        oneLine->setStored(text);
    field.setText(text);
}

} // namespace abissora

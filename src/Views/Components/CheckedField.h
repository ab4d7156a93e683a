// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

namespace abissora {

/// A field that takes no text for something else: what it cannot take stays as it was typed and is marked, with the
/// reason for the person to read.
class CheckedField : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// Takes what is typed, as leaving the field does. False when no value comes of it; error() then says why.
    virtual bool commit() = 0;
    /// Empty until commit() fails, and again as soon as a value is there.
    [[nodiscard]] const QString& error() const { return m_error; }

Q_SIGNALS:
    void errorChanged(const QString& error);

protected:
    void setError(const QString& error);

private:
    QString m_error;
};

} // namespace abissora

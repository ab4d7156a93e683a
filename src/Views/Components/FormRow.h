// SPDX-License-Identifier: MIT
#pragma once

#include <QLineEdit>

class QLabel;

namespace abissora {

class WrapLabel;

/// A field that takes no text for something else: what it cannot take stays as it was typed and is marked, with the
/// reason for the person to read.
class CheckedField : public QLineEdit
{
    Q_OBJECT

public:
    explicit CheckedField(QWidget* parent = nullptr);

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

/// A field behind its label. The label stands right-aligned in a column as wide in every row of the form, and names the
/// field to screen readers.
class FormRow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int labelColumn = 156; ///< at the usual text size

    /// Takes the field over. A field that does not want the whole width says so by its size policy. The error of a
    /// CheckedField stands below it. The access key is a letter of the label.
    FormRow(const QString& label, QWidget* field, QChar accessKey = {}, QWidget* parent = nullptr);

    /// A width other than labelColumn, at the usual text size too.
    void setLabelColumn(int width);

    /// A text below the field.
    void setHint(const QString& hint);
    /// Takes over what else stands below the field and its hint.
    void addBelow(QWidget* widget);

private:
    void showError(const QString& error);

    QLabel* m_hint = nullptr;
    WrapLabel* m_error = nullptr;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace abissora {

class WrapLabel;

/// A field behind its label. The label stands right-aligned in a column as wide in every row of the form, and names the
/// field to screen readers.
class FormRow : public QWidget
{
    Q_OBJECT

public:
    static constexpr int labelColumn = 156; ///< at the usual text size

    /// Takes the field over. A field that does not want the whole width says so by its size policy. The error of a
    /// CheckedField stands below it.
    FormRow(const QString& label, QWidget* field, QWidget* parent = nullptr);

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

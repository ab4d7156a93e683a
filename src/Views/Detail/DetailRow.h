// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

class WrapLabel;

/// A label at the left, its value at the right.
class DetailRow : public QWidget
{
    Q_OBJECT

public:
    explicit DetailRow(const QString& label, QWidget* parent = nullptr);

    [[nodiscard]] QString label() const;
    [[nodiscard]] QString value() const;
    void setValue(const QString& value);

private:
    QString m_label;
    WrapLabel* m_value;
};

} // namespace abissora

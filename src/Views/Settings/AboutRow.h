// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

class QLabel;

namespace abissora {

/// A label at the left, its value at the right, which can be selected and copied.
class AboutRow : public QWidget
{
    Q_OBJECT

public:
    AboutRow(const QString& label, const QString& value, QWidget* parent = nullptr);

    [[nodiscard]] QString label() const;
    [[nodiscard]] QString value() const;

private:
    QLabel* m_label;
    QLabel* m_value;
};

} // namespace abissora

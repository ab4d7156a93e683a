// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace abissora {

class InkLabel;

/// The counts below the register's table.
class ListFooter : public QWidget
{
    Q_OBJECT

public:
    explicit ListFooter(QWidget* parent = nullptr);

    /// Rows shown, items due in the whole register (0 shows nothing), active items among the rows.
    void setCounts(qsizetype shown, qsizetype due, qsizetype active);

private:
    InkLabel* m_shown;
    InkLabel* m_due;
    InkLabel* m_active;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

class QTableView;

namespace abissora {

/// Keeps the columns of the register's table together as wide as its viewport. Spare width goes to names, makes, models
/// and dates by fixed shares. In a narrow viewport makes and models give way first, names and dates last, each down to
/// a least width; below that the table scrolls. A date's least width holds its abbreviated form.
class EquipmentColumns : public QObject
{
    Q_OBJECT

public:
    /// Belongs to the table.
    explicit EquipmentColumns(QTableView& table);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();

    QTableView& m_table;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "Card.h"
#include "TypeAppearance.h"

#include <QList>

class QGridLayout;
class QLabel;
class QProgressBar;

namespace abissora {

class IconView;

/// How many items each type has, as bars measured against the whole register.
class TypeDistribution : public Card
{
    Q_OBJECT

public:
    struct Share
    {
        QString name;
        TypeAppearance appearance;
        qsizetype count = 0;
    };

    explicit TypeDistribution(QWidget* parent = nullptr);

    /// One row per share in this order; none, and a text instead, when `total` is 0.
    void setShares(const QList<Share>& shares, qsizetype total);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row
    {
        IconView* icon;
        QLabel* name;
        QProgressBar* bar;
        QLabel* count;
    };

    void addRow();
    void removeRow();
    static void fitToText(const Row& row);
    static void fill(const Row& row, const Share& share, qsizetype total);

    QGridLayout* m_grid;
    QLabel* m_nothing;
    QList<Row> m_rows;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "RegisterFigures.h"

#include <QLayout>
#include <QList>

namespace abissora {

class StatCard;

/// Places its items in columns of one width and rows of one height: as many columns as wanted, or the next smaller
/// number that fills every row and still gives each item the width it needs.
class CardGrid : public QLayout
{
    Q_OBJECT

public:
    explicit CardGrid(int columns);
    ~CardGrid() override;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    [[nodiscard]] QSize itemSize() const;
    [[nodiscard]] int columnsIn(int width) const;
    [[nodiscard]] QSize sizeWith(int columns) const;

    QList<QLayoutItem*> m_items;
    int m_columns;
};

/// A card for each figure of the register.
class FigureGrid : public CardGrid
{
    Q_OBJECT

public:
    /// The values are not shown yet.
    FigureGrid(const QList<RegisterFigure>& figures, int columns);

    /// The same figures in the same order.
    void setValues(const QList<RegisterFigure>& figures);

private:
    QList<StatCard*> m_cards;
};

} // namespace abissora

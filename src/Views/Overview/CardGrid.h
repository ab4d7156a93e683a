// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

namespace abissora {

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

} // namespace abissora

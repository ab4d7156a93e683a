// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

namespace abissora {

/// Places its items in one row where they have room, else in two rows of equal width whose items stand below one
/// another, else in a column.
class ActionRows : public QLayout
{
    Q_OBJECT

public:
    explicit ActionRows(int gap);
    ~ActionRows() override;

    /// What the items need so that they stand in so many columns.
    [[nodiscard]] int widthOf(int columns) const;

    void addItem(QLayoutItem* item) override;
    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;

    [[nodiscard]] Qt::Orientations expandingDirections() const override { return {}; }
    [[nodiscard]] bool hasHeightForWidth() const override { return true; }
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

private:
    [[nodiscard]] QList<int> columnWidths(int columns) const;
    [[nodiscard]] int columnsIn(int width) const;
    [[nodiscard]] int rowHeight() const;

    QList<QLayoutItem*> m_items;
    int m_gap;
};

} // namespace abissora

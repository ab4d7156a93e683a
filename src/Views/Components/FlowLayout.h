// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

namespace abissora {

/// Places its items beside one another, in as many lines as the width asks for. Hidden items take no room.
class FlowLayout : public QLayout
{
    Q_OBJECT

public:
    FlowLayout(int horizontalGap, int verticalGap);
    ~FlowLayout() override;

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
    /// The height that it takes; moves the items only when told to.
    int arrange(const QRect& rect, bool move) const;

    QList<QLayoutItem*> m_items;
    int m_horizontalGap;
    int m_verticalGap;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "Cards.h"
#include "StateDifferences.h"

namespace abissora {

class ElidedLabel;

/// What is another in an earlier state, sort by sort.
class DifferenceCard final : public Card
{
    Q_OBJECT

public:
    explicit DifferenceCard(const QList<DifferenceGroup>& groups, QWidget* parent = nullptr);
};

/// A name and at its right what becomes of it. A name has at least half of the room, if it wants it.
class DifferenceRow final : public QWidget
{
    Q_OBJECT

public:
    explicit DifferenceRow(const DifferenceLine& line, QWidget* parent = nullptr);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void shareRoom();

    ElidedLabel* m_name;
    ElidedLabel* m_detail;
    QWidget* m_arrow;
    ElidedLabel* m_becomes;
};

} // namespace abissora

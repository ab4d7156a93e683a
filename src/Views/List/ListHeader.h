// SPDX-License-Identifier: MIT
#pragma once

#include "ListContent.h"

#include <QWidget>

class QHBoxLayout;

namespace abissora {

class Chip;
class LookButton;
class WrapLabel;

/// The title, the chip of the active type filter and the buttons above the register's table. What has no room beside
/// the title stands on a line of its own.
class ListHeader : public QWidget
{
    Q_OBJECT

public:
    explicit ListHeader(QWidget* parent = nullptr);

    /// Nothing hides the chip.
    void setFilter(const std::optional<ListContent::Filter>& filter);

Q_SIGNALS:
    void addClicked();
    void refreshClicked();
    void clearFilterClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeButtons();
    void placeChip();

    QHBoxLayout* m_line;
    QHBoxLayout* m_buttonLine; ///< where they have no room beside the title
    WrapLabel* m_title;
    LookButton* m_refresh;
    LookButton* m_add;
    Chip* m_chip;
};

} // namespace abissora

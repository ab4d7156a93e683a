// SPDX-License-Identifier: MIT
#pragma once

#include "DivingIcons.h"
#include "InkLabel.h"

namespace abissora {

class DivingIconButton;
class GridFocus;

/// Every icon that a type can have, under the titles of their sections, one of them chosen.
class IconGrid : public QWidget
{
    Q_OBJECT

public:
    static constexpr int columns = 8;

    explicit IconGrid(QWidget* parent = nullptr);

    /// Shows these sections only. The choice stays, even where it is not shown.
    void setSections(const QList<DivingIconsCategory>& sections);

    [[nodiscard]] DivingIcons selectedIcon() const { return m_selectedIcon; }
    /// Emits nothing.
    void setSelectedIcon(DivingIcons icon);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

Q_SIGNALS:
    void chosen(abissora::DivingIcons icon);
    /// The keyboard came to a cell, which should be in sight.
    void entered(QWidget* cell);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Section
    {
        InkLabel* title;
        QList<DivingIconButton*> cells;
        QList<DivingIconButton*> shown;
    };

    void choose(DivingIcons icon);
    /// The height that it takes; moves titles and cells only when told to.
    int arrange(bool move) const;
    void followTheShown();

    QList<Section> m_sections;
    GridFocus* m_focus;
    DivingIcons m_selectedIcon = DivingIcons::regulator;
};

} // namespace abissora

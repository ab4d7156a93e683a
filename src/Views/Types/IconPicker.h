// SPDX-License-Identifier: MIT
#pragma once

#include "Buttons.h"
#include "Cards.h"
#include "DivingIcons.h"

namespace abissora {

class GridFocus;
class InkLabel;
class SearchField;

/// A cell of the icon picker, named by what its picture shows. Of the cells beside one another one is chosen.
class DivingIconButton final : public IconButton
{
    Q_OBJECT

public:
    explicit DivingIconButton(DivingIcons icon, QWidget* parent = nullptr);

    [[nodiscard]] DivingIcons divingIcon() const { return m_icon; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    DivingIcons m_icon;
};

/// Every icon that a type can have, under the titles of their sections, one of them chosen.
class IconGrid : public QWidget
{
    Q_OBJECT

public:
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
        InkLabel* title = nullptr;
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

/// "Selezione Icona": the icons of the picker and the search through them.
class IconPicker : public GroupBox
{
    Q_OBJECT

public:
    explicit IconPicker(QWidget* parent = nullptr);

    [[nodiscard]] IconGrid& grid() { return *m_grid; }

private:
    void filter(const QString& searchIconText);

    SearchField* m_search;
    IconGrid* m_grid;
    InkLabel* m_nothing;
};

} // namespace abissora

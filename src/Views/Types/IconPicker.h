// SPDX-License-Identifier: MIT
#pragma once

#include "GroupBox.h"

namespace abissora {

class IconGrid;
class InkLabel;
class SearchField;

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

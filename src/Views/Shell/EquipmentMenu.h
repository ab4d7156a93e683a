// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace abissora {

class ContentView;

/// What can be done with one item: the one in detail, or the one where the keyboard stands in the list. Without an item
/// its commands are disabled.
class EquipmentMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `content` must outlive it.
    explicit EquipmentMenu(ContentView& content, QWidget* parent = nullptr);

private:
    void follow();

    ContentView& m_content;
    QAction* m_toggleActive;
};

} // namespace abissora

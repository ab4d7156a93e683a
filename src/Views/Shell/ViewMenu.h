// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

namespace abissora {

class ContentView;

/// The tabs and the settings, with the one marked that is shown.
class ViewMenu final : public QMenu
{
    Q_OBJECT

public:
    /// `content` must outlive it.
    explicit ViewMenu(ContentView& content, QWidget* parent = nullptr);

private:
    void follow();

    ContentView& m_content;
    QList<QAction*> m_tabs;
    QAction* m_settings;
};

} // namespace abissora

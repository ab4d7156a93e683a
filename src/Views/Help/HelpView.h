// SPDX-License-Identifier: MIT
#pragma once

#include "HelpIndex.h"

#include <QWidget>

class QStackedWidget;

namespace abissora {

class HelpIndexView;
class HelpPage;
class Opener;

/// The guide: its index with a search beside the chosen section. Content of a window or of a sheet; it asks for no
/// closing of its own.
class HelpView : public QWidget
{
    Q_OBJECT

public:
    /// Links are opened through `opener`, which outlives the view.
    HelpView(QList<HelpSection> sections, Opener& opener, QWidget* parent = nullptr);

private:
    [[nodiscard]] static QLayout* makeHeader();
    [[nodiscard]] QLayout* makeBody();
    void showSelection();

    HelpIndex m_index;
    HelpIndexView* m_indexView;
    HelpPage* m_page;
    QStackedWidget* m_pages;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "HelpIndex.h"

#include <QWidget>

namespace abissora {

class Opener;

/// The guide: its index with a search beside the chosen section. Content of a window or of a sheet; it asks for no
/// closing of its own.
class HelpView : public QWidget
{
    Q_OBJECT

public:
    /// Shows the program's guide; links are opened through `opener`, which outlives the view.
    explicit HelpView(Opener& opener, QWidget* parent = nullptr);
    HelpView(QList<HelpSection> sections, Opener& opener, QWidget* parent = nullptr);

private:
    HelpIndex m_index;
};

} // namespace abissora

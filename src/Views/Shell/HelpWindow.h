// SPDX-License-Identifier: MIT
#pragma once

#include <QMainWindow>

namespace abissora {

class Opener;

/// The guide in a window of its own. It deletes itself when it closes, so that it opens afresh.
class HelpWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// `opener` must outlive it.
    explicit HelpWindow(Opener& opener);
};

} // namespace abissora

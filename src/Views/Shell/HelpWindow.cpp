// SPDX-License-Identifier: MIT
#include "HelpWindow.h"

#include "CloseShortcut.h"
#include "HelpView.h"
#include "Literals.h"

namespace abissora {

namespace {

constexpr QSize leastSize(880, 640);

} // namespace

HelpWindow::HelpWindow(Opener& opener)
{
    setObjectName(u"helpWindow"_s);
    setWindowTitle(u"Aiuto"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(leastSize);
    setCentralWidget(new HelpView(opener));
    closeByKeyboard(*this);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "HelpWindow.h"

#include "CloseShortcut.h"
#include "HelpView.h"

namespace abissora {

namespace {

constexpr QSize leastSize(880, 640);

} // namespace

HelpWindow::HelpWindow(Opener& opener)
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Aiuto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(leastSize);
    setCentralWidget(new HelpView(opener));
    closeByKeyboard(*this);
}

} // namespace abissora

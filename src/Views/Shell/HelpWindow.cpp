// SPDX-License-Identifier: MIT
#include "HelpWindow.h"

#include "CloseShortcut.h"
#include "HelpView.h"

#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr QSize leastSize(880, 640);

} // namespace

HelpWindow::HelpWindow(Opener& opener)
    : QWidget(nullptr, Qt::Window)
{
    setObjectName(QStringLiteral("helpWindow"));
    setWindowTitle(QStringLiteral("Aiuto"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumSize(leastSize);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new HelpView(opener));
    closeByKeyboard(*this);
}

} // namespace abissora

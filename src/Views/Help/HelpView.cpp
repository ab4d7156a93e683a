// SPDX-License-Identifier: MIT
#include "HelpView.h"

#include "HelpLoader.h"
#include "Opener.h"

#include <QVBoxLayout>

namespace abissora {

HelpView::HelpView(Opener& opener, QWidget* parent)
    : HelpView(HelpLoader::load(), opener, parent)
{}

HelpView::HelpView(QList<HelpSection> sections, Opener& /*opener*/, QWidget* parent)
    : QWidget(parent)
    , m_index(std::move(sections))
{
    setObjectName(QStringLiteral("helpView"));
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "Theme.h"

#include "AbissoraStyle.h"
#include "Literals.h"
#include "SchemePalette.h"

#include <QApplication>
#include <QToolTip>
#include <memory>

namespace abissora {

namespace {

QFont interfaceFont(QFont system)
{
    // Pictographs are looked for among the emoji before any text font that happens to have them.
    QStringList families{u"Inter"_s, u"Noto Color Emoji"_s};
    families += system.families();
    system.setFamilies(families);
    return system;
}

} // namespace

void applyTheme(QApplication& application, Scheme scheme)
{
    if (qobject_cast<AbissoraStyle*>(application.style()) == nullptr) {
        QApplication::setFont(interfaceFont(QApplication::font()));
        QApplication::setStyle(std::make_unique<AbissoraStyle>().release());
    }
    const QPalette palette = paletteFor(scheme);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace abissora

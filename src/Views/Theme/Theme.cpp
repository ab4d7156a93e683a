// SPDX-License-Identifier: MIT
#include "Theme.h"

#include "AbissoraStyle.h"
#include "Literals.h"

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

QPalette paletteFor(Scheme scheme)
{
    const Tokens& tokens = Tokens::of(scheme);
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, const QColor& enabled, const QColor& disabled) {
        palette.setColor(QPalette::Active, role, enabled);
        palette.setColor(QPalette::Inactive, role, enabled);
        palette.setColor(QPalette::Disabled, role, disabled);
    };
    const auto setBoth = [&](QPalette::ColorRole role, const QColor& color) { set(role, color, color); };

    setBoth(QPalette::Window, tokens.window);
    set(QPalette::WindowText, tokens.text, tokens.disabled);
    set(QPalette::Base, tokens.field, tokens.window);
    setBoth(QPalette::AlternateBase, tokens.sidebar);
    set(QPalette::Text, tokens.text, tokens.disabled);
    set(QPalette::PlaceholderText, tokens.secondaryText, tokens.disabled);
    setBoth(QPalette::Button, tokens.surface);
    set(QPalette::ButtonText, tokens.text, tokens.disabled);
    setBoth(QPalette::BrightText, tokens.onFill);

    setBoth(QPalette::Light, tokens.surface);
    setBoth(QPalette::Midlight, tokens.divider);
    setBoth(QPalette::Mid, tokens.border);
    set(QPalette::Dark, tokens.strongBorder, tokens.border);
    set(QPalette::Shadow, tokens.secondaryText, tokens.border);

    set(QPalette::Highlight, tokens.accentFill, tokens.border);
    set(QPalette::HighlightedText, tokens.onFill, tokens.text);
    set(QPalette::Link, tokens.accentInk, tokens.disabled);
    set(QPalette::LinkVisited, tokens.named(NamedColor::purple), tokens.disabled);
    setBoth(QPalette::NoRole, tokens.window);
    setBoth(QPalette::ToolTipBase, tokens.surface);
    setBoth(QPalette::ToolTipText, tokens.text);
    return palette;
}

void applyTheme(QApplication& application, Scheme scheme)
{
    if (qobject_cast<AbissoraStyle*>(application.style()) == nullptr) {
        QApplication::setStyle(std::make_unique<AbissoraStyle>().release());
        // Last of all, and for every kind of widget: desktops have menus in another family and size.
        QApplication::setFont(interfaceFont(QApplication::font()));
    }
    const QPalette palette = paletteFor(scheme);
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "WindowState.h"

#include <QSplitter>
#include <QWidget>

namespace abissora {

namespace {

const QString sizeKey = QStringLiteral("main/size");
const QString maximizedKey = QStringLiteral("main/maximized");
const QString splitterKey = QStringLiteral("main/splitter");
constexpr QSize usualSize(1280, 800);

} // namespace

WindowState::WindowState(const QString& file)
    : m_settings(file, QSettings::IniFormat)
{}

void WindowState::restore(QWidget& window, QSplitter& splitter) const
{
    const QSize size = m_settings.value(sizeKey).toSize();
    window.resize(size.isValid() ? size : usualSize);
    if (m_settings.value(maximizedKey).toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    splitter.restoreState(m_settings.value(splitterKey).toByteArray());
}

void WindowState::save(const QWidget& window, const QSplitter& splitter)
{
    m_settings.setValue(sizeKey, window.isMaximized() ? window.normalGeometry().size() : window.size());
    m_settings.setValue(maximizedKey, window.isMaximized());
    m_settings.setValue(splitterKey, splitter.saveState());
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "WindowState.h"

#include <QSplitter>
#include <QWidget>

namespace abissora {

namespace {

const QString sizeKey = QStringLiteral("main/size");
const QString maximizedKey = QStringLiteral("main/maximized");
constexpr QSize usualSize(1280, 800);

QString keyOf(const QSplitter& splitter)
{
    return QStringLiteral("main/") + splitter.objectName();
}

} // namespace

WindowState::WindowState(const QString& file)
    : m_settings(file, QSettings::IniFormat)
{}

void WindowState::restore(QWidget& window, const QList<QSplitter*>& splitters) const
{
    const QSize size = m_settings.value(sizeKey).toSize();
    window.resize(size.isValid() ? size : usualSize);
    if (m_settings.value(maximizedKey).toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    for (QSplitter* splitter : splitters)
        splitter->restoreState(m_settings.value(keyOf(*splitter)).toByteArray());
}

void WindowState::save(const QWidget& window, const QList<QSplitter*>& splitters)
{
    m_settings.setValue(sizeKey, window.isMaximized() ? window.normalGeometry().size() : window.size());
    m_settings.setValue(maximizedKey, window.isMaximized());
    for (const QSplitter* splitter : splitters)
        m_settings.setValue(keyOf(*splitter), splitter->saveState());
}

} // namespace abissora

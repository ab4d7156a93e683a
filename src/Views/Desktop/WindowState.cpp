// SPDX-License-Identifier: MIT
#include "WindowState.h"

#include "Literals.h"

#include <QSplitter>
#include <QWidget>

namespace abissora {

namespace {

const QString sizeKey = u"main/size"_s;
const QString maximizedKey = u"main/maximized"_s;
constexpr QSize usualSize(1280, 800);

QString keyOf(const QSplitter& splitter)
{
    return u"main/"_s + splitter.objectName();
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

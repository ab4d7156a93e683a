// SPDX-License-Identifier: MIT
#include "WindowState.h"

#include "Literals.h"
#include "OwnersFile.h"

#include <QSplitter>
#include <QWidget>

namespace abissora {

namespace {

const QString sizeKey = u"main/size"_s;
const QString columnsKey = u"main/columns"_s;
const QString maximizedKey = u"main/maximized"_s;
constexpr QSize usualSize(1280, 800);

/// What the desktop draws around the window. Before that is known, a title bar and borders as they usually are.
QMargins frameOf(const QWidget& window)
{
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    if (outer == inner)
        return {4, 34, 4, 4};
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

QString keyOf(const QSplitter& splitter)
{
    return u"main/"_s + splitter.objectName();
}

} // namespace

WindowState::WindowState(const QString& file)
    : m_settings(file, QSettings::IniFormat)
{}

void WindowState::restore(QWidget& window, const QList<QSplitter*>& splitters, const QRect& room) const
{
    const QSize size = m_settings.value(sizeKey).toSize();
    const QSize wanted = size.isValid() ? size : usualSize;
    window.resize(wanted.boundedTo(room.marginsRemoved(frameOf(window)).size()).expandedTo(window.minimumSize()));
    if (m_settings.value(maximizedKey).toBool())
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
    for (QSplitter* splitter : splitters)
        splitter->restoreState(m_settings.value(keyOf(*splitter)).toByteArray());
}

QList<int> WindowState::columnWidths() const
{
    QList<int> widths;
    for (const QString& width : m_settings.value(columnsKey).toStringList())
        widths.append(width.toInt());
    return widths;
}

void WindowState::saveColumnWidths(const QList<int>& widths)
{
    QStringList texts;
    for (const int width : widths)
        texts.append(QString::number(width));
    makeOwnersFile(m_settings.fileName());
    m_settings.setValue(columnsKey, texts);
}

void WindowState::save(const QWidget& window, const QList<QSplitter*>& splitters)
{
    makeOwnersFile(m_settings.fileName());
    m_settings.setValue(sizeKey, window.isMaximized() ? window.normalGeometry().size() : window.size());
    m_settings.setValue(maximizedKey, window.isMaximized());
    for (const QSplitter* splitter : splitters)
        m_settings.setValue(keyOf(*splitter), splitter->saveState());
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "SymbolIconEngine.h"

#include "Literals.h"
#include "SymbolRenderer.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace abissora {

namespace {

// Where a picture is to stand so that its pixels are the device's own, also at fractional scales.
QPointF onDeviceGrid(const QPainter& painter, const QPointF& point)
{
    const QTransform transform = painter.deviceTransform();
    if (transform.type() > QTransform::TxScale)
        return point;
    return transform.inverted().map(QPointF(transform.map(point).toPoint()));
}

} // namespace

SymbolIconEngine::SymbolIconEngine(QString name, QString path, SymbolInk ink)
    : m_name(std::move(name))
    , m_path(std::move(path))
    , m_ink(std::move(ink))
{}

void SymbolIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const qreal scale = painter->device()->devicePixelRatioF();
    QImage image = render((QSizeF(rect.size()) * scale).toSize(), mode);
    if (image.isNull())
        return;
    image.setDevicePixelRatio(scale);
    painter->drawImage(onDeviceGrid(*painter, rect.topLeft()), image);
}

QPixmap SymbolIconEngine::pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State)
{
    return QPixmap::fromImage(render(pixels, mode));
}

QPixmap SymbolIconEngine::scaledPixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state, qreal scale)
{
    QPixmap picture = pixmap(pixels, mode, state);
    picture.setDevicePixelRatio(scale);
    return picture;
}

QIconEngine* SymbolIconEngine::clone() const
{
    return new SymbolIconEngine(*this);
}

QString SymbolIconEngine::key() const
{
    return u"AbissoraSymbol"_s;
}

QString SymbolIconEngine::iconName()
{
    return m_name;
}

bool SymbolIconEngine::isNull()
{
    return m_path.isEmpty();
}

QImage SymbolIconEngine::render(QSize pixels, QIcon::Mode mode) const
{
    return renderSymbol(m_path, inkColor(m_ink, QGuiApplication::palette(), mode), pixels);
}

} // namespace abissora

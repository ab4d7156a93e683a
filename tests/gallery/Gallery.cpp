// SPDX-License-Identifier: MIT
#include "Gallery.h"

#include "Theme.h"

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QWidget>

namespace abissora::gallery {

namespace {

QImage picture(QWidget& widget, qreal scale)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    widget.render(&painter, {}, {}, QWidget::DrawWindowBackground | QWidget::DrawChildren);
    return image;
}

bool renderScene(const Scene& scene, const QString& schemeName, const QDir& folder)
{
    const auto widget = scene.make();
    widget->show();
    // A changed text travels upward one layout at a time, each by an event of its own.
    for (int level = 0; level < 5; ++level)
        QApplication::processEvents();
    bool written = true;
    for (const qreal scale : {1.0, 1.5, 2.0}) {
        const QString name = QStringLiteral("%1-%2@%3.png").arg(scene.name, schemeName).arg(scale);
        written = picture(*widget, scale).save(folder.filePath(name)) && written;
    }
    return written;
}

} // namespace

bool render(const QList<Scene>& scenes, const QDir& folder)
{
    bool written = true;
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        applyTheme(*qApp, scheme);
        const QString name = scheme == Scheme::Light ? QStringLiteral("light") : QStringLiteral("dark");
        for (const Scene& scene : scenes)
            written = renderScene(scene, name, folder) && written;
    }
    return written;
}

} // namespace abissora::gallery

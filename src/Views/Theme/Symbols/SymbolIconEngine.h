// SPDX-License-Identifier: MIT
#pragma once

#include "SymbolInk.h"

#include <QIconEngine>

namespace abissora {

/// Draws one SVG for whatever device, size, mode and palette it meets; keeps no picture of its own. As it is sharp at
/// every size, it has no list of available sizes.
class SymbolIconEngine final : public QIconEngine
{
public:
    /// `path` is the SVG's resource path; an empty one draws nothing.
    SymbolIconEngine(QString name, QString path, SymbolInk ink);

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state) override;
    QPixmap scaledPixmap(const QSize& pixels, QIcon::Mode mode, QIcon::State state, qreal scale) override;

    QIconEngine* clone() const override;
    QString key() const override;
    QString iconName() override;
    bool isNull() override;

private:
    [[nodiscard]] QImage render(QSize pixels, QIcon::Mode mode) const;

    QString m_name;
    QString m_path;
    SymbolInk m_ink;
};

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include "NamedColor.h"

#include <QColor>
#include <QIconEngine>
#include <variant>

namespace abissora {

/// What a symbol is painted with: the palette's text colour, a colour of the scheme by its name, or one fixed colour.
using SymbolInk = std::variant<std::monostate, NamedColor, QColor>;

/// Draws one SVG for whatever device, size, mode and palette it meets; keeps no picture of its own. As it is sharp at
/// every size, it has no list of available sizes.
class SymbolIconEngine : public QIconEngine
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

protected:
    /// An SVG among the resources with its currentColor replaced, as large as its proportions allow in the middle of
    /// `pixels`, on a transparent ground. Recent pictures are kept. Null when the file or the size is empty.
    [[nodiscard]] static QImage picture(const QString& path, const QColor& color, QSize pixels);

    /// What the engine shows in all its ways.
    [[nodiscard]] virtual QImage render(QSize pixels, QIcon::Mode mode) const;

private:
    QString m_name;
    QString m_path;
    SymbolInk m_ink;
};

} // namespace abissora

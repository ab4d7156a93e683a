// SPDX-License-Identifier: MIT
#pragma once

#include "TestRunner.h"
#include "Tokens.h"

#include <QImage>
#include <QStyle>

class QAbstractItemView;
class QPainter;
class QWidget;

namespace abissora::test {

/// What differs from the ground within a part of a picture.
struct Ink
{
    qreal area = 0;     ///< in square logical pixels
    QColor core;        ///< of the pixel that differs most
    QRectF bounds = {}; ///< logical
};

/// Something drawn at one scale, judged in logical coordinates. A judgement is an empty text, or says what is wrong.
class Picture
{
public:
    using Draw = std::function<void(QPainter&)>;

    /// `draw` has the size for itself, on that ground; judge() finds out what it paints beyond.
    Picture(QSize size, qreal scale, const QColor& ground, const Draw& draw);
    /// The widget with its children, on its window's colour.
    Picture(QWidget& widget, qreal scale);

    [[nodiscard]] QRect rect() const { return {QPoint(), m_size}; }
    [[nodiscard]] QColor at(QPointF place) const;
    [[nodiscard]] Ink ink(const QRectF& where, const QColor& ground) const;
    /// How much of a colour there is, in square logical pixels.
    [[nodiscard]] qreal amount(const QRectF& where, const QColor& color) const;
    /// Whether the line of text that the rectangle holds is cut off by dots. Its letters must be tall ones.
    [[nodiscard]] bool endsInDots(const QRectF& line, const QColor& ground) const;

    /// Something is drawn there, and the strongest of it has that colour. The tolerance is of a channel, of 255;
    /// strokes thinner than two pixels want a larger one.
    [[nodiscard]] QString inked(const QRectF& where, const QColor& ground, const QColor& color,
                                int tolerance = 24) const;
    /// At least that share of the rectangle has the colour.
    [[nodiscard]] QString filled(const QRectF& where, const QColor& color, qreal share = 0.5) const;
    [[nodiscard]] QString bare(const QRectF& where, const QColor& ground) const;
    /// The rectangle's four sides are lines of the colour, so wide where their middle is.
    [[nodiscard]] QString framed(const QRectF& where, const QColor& color, qreal width) const;
    /// Nothing is drawn outside of the size.
    [[nodiscard]] QString contained() const;

private:
    [[nodiscard]] QRect onImage(const QRectF& where) const;

    QSize m_size;
    qreal m_scale;
    int m_margin = 0;
    QImage m_image;
};

/// No judgement was passed against the picture.
inline const QString fine;

/// Base of the tests of pictures: every test function runs in both schemes at the scales 1 and 2.
class PictureTest : public TestCase
{
    Q_OBJECT

protected Q_SLOTS:
    void initTestCase_data();
    void init();

protected:
    [[nodiscard]] static qreal scale();
    [[nodiscard]] static const Tokens& tokens();
    [[nodiscard]] static Picture drawn(QSize size, const QColor& ground, const Picture::Draw& draw);
    [[nodiscard]] static Picture drawn(QWidget& widget);
    /// The cell of an item view by its delegate.
    [[nodiscard]] static Picture drawnItem(const QAbstractItemView& view, const QModelIndex& index, QSize size,
                                           const QColor& ground, QStyle::State state = {});
    /// As it looks with the keyboard's focus in it.
    [[nodiscard]] static Picture drawnFocused(QWidget& widget);
};

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#include "Picture.h"

#include "Gui.h"
#include "Pointer.h"
#include "Theme.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyleOptionViewItem>
#include <cmath>

namespace abissora::test {

namespace {

/// Differences of a channel, of 255.
constexpr int noise = 8; ///< what antialiasing and rounding leave on a bare ground
constexpr int exact = 3; ///< between a token and a fill of it

constexpr qreal leastArea = 3; ///< of a picture or a text

/// No token comes near it.
const QColor marker(Qt::magenta);

int difference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

int difference(const QColor& a, const QColor& b)
{
    return difference(a.rgb(), b.rgb());
}

/// Calls `visit` with the place and the colour of every pixel of a part.
template <typename Visit>
void forEachPixel(const QImage& image, const QRect& part, Visit visit)
{
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = part.left(); x <= part.right(); ++x)
            visit(QPoint(x, y), line[x]);
    }
}

QString text(const QRectF& rect)
{
    return u"(%1, %2, %3 x %4)"_s.arg(rect.x()).arg(rect.y()).arg(rect.width()).arg(rect.height());
}

} // namespace

Picture::Picture(QSize size, qreal scale, const QColor& ground, const Draw& draw)
    : m_size(size)
    , m_scale(scale)
    , m_margin(40)
    , m_image((size + QSize(2 * m_margin, 2 * m_margin)) * scale, QImage::Format_ARGB32_Premultiplied)
{
    m_image.setDevicePixelRatio(scale);
    m_image.fill(marker);
    QPainter painter(&m_image);
    painter.translate(m_margin, m_margin);
    painter.fillRect(rect(), ground);
    draw(painter);
    painter.end();
    m_image.convertTo(QImage::Format_RGB32);
}

Picture::Picture(QWidget& widget, qreal scale)
    : m_size(widget.size())
    , m_scale(scale)
    , m_image(m_size * scale, QImage::Format_ARGB32_Premultiplied)
{
    m_image.setDevicePixelRatio(scale);
    m_image.fill(widget.palette().color(QPalette::Window));
    widget.render(&m_image, {}, {}, QWidget::DrawChildren);
    m_image.convertTo(QImage::Format_RGB32);
}

QRect Picture::onImage(const QRectF& where) const
{
    const QRectF device(where.topLeft() * m_scale, where.size() * m_scale);
    const int offset = qRound(m_margin * m_scale);
    return device.toAlignedRect().translated(offset, offset) & m_image.rect();
}

QColor Picture::at(QPointF place) const
{
    return m_image.pixelColor(onImage(QRectF(place, QSizeF(0.5, 0.5))).topLeft());
}

Ink Picture::ink(const QRectF& where, const QColor& ground) const
{
    QRgb core = ground.rgb();
    qsizetype count = 0;
    QRect bounds;
    forEachPixel(m_image, onImage(where), [&](QPoint place, QRgb pixel) {
        const int strength = difference(pixel, ground.rgb());
        if (strength <= noise)
            return;
        ++count;
        bounds |= QRect(place, QSize(1, 1));
        if (strength > difference(core, ground.rgb()))
            core = pixel;
    });
    const QPointF corner = QPointF(bounds.topLeft()) / m_scale - QPointF(m_margin, m_margin);
    return {.area = static_cast<qreal>(count) / (m_scale * m_scale),
            .core = QColor(core),
            .bounds = bounds.isEmpty() ? QRectF() : QRectF(corner, QSizeF(bounds.size()) / m_scale)};
}

qreal Picture::amount(const QRectF& where, const QColor& color) const
{
    qsizetype count = 0;
    forEachPixel(m_image, onImage(where),
                 [&](QPoint, QRgb pixel) { count += difference(pixel, color.rgb()) <= exact ? 1 : 0; });
    return static_cast<qreal>(count) / (m_scale * m_scale);
}

bool Picture::endsInDots(const QRectF& line, const QColor& ground) const
{
    constexpr qreal widthOfDots = 7;
    const QRectF all = ink(line, ground).bounds;
    const QRectF end = ink(QRectF(all.right() - widthOfDots, line.top(), widthOfDots, line.height()), ground).bounds;
    return end.top() > all.center().y();
}

QString Picture::inked(const QRectF& where, const QColor& ground, const QColor& color, int tolerance) const
{
    const Ink found = ink(where, ground);
    if (found.area < leastArea)
        return u"nothing is drawn in %1"_s.arg(text(where));
    if (difference(found.core, color) > tolerance)
        return u"%1 instead of %2 in %3"_s.arg(found.core.name(), color.name(), text(where));
    return fine;
}

QString Picture::filled(const QRectF& where, const QColor& color, qreal share) const
{
    const qreal has = amount(where, color) / (where.width() * where.height());
    return has >= share ? fine : u"%1 fills %2 of %3"_s.arg(color.name()).arg(has).arg(text(where));
}

QString Picture::bare(const QRectF& where, const QColor& ground) const
{
    const Ink found = ink(where, ground);
    return found.area == 0 ? fine : u"%1 is drawn in %2"_s.arg(found.core.name(), text(found.bounds));
}

QString Picture::framed(const QRectF& where, const QColor& color, qreal width) const
{
    const qreal reach = width + 1;
    const QPoint middle = where.center().toPoint();
    const std::array<QRectF, 4> beams{
        QRectF(middle.x(), where.top(), 1, reach), QRectF(middle.x(), where.bottom() - reach, 1, reach),
        QRectF(where.left(), middle.y(), reach, 1), QRectF(where.right() - reach, middle.y(), reach, 1)};
    for (const QRectF& beam : beams) {
        if (const qreal has = amount(beam, color); std::abs(has - width) > 0.5)
            return u"%1 is %2 wide in %3"_s.arg(color.name()).arg(has).arg(text(beam));
    }
    return fine;
}

QString Picture::contained() const
{
    const QRect inside = onImage(rect());
    QString fault;
    forEachPixel(m_image, m_image.rect(), [&](QPoint place, QRgb pixel) {
        if (pixel != marker.rgb() && fault.isEmpty() && !inside.contains(place))
            fault = u"%1 is drawn outside, at %2, %3"_s.arg(QColor(pixel).name())
                        .arg(place.x() / m_scale - m_margin)
                        .arg(place.y() / m_scale - m_margin);
    });
    return fault;
}

void PictureTest::initTestCase_data()
{
    QTest::addColumn<Scheme>("scheme");
    QTest::addColumn<qreal>("scale");
    QTest::newRow("light@1") << Scheme::Light << 1.0;
    QTest::newRow("light@2") << Scheme::Light << 2.0;
    QTest::newRow("dark@1") << Scheme::Dark << 1.0;
    QTest::newRow("dark@2") << Scheme::Dark << 2.0;
}

void PictureTest::init()
{
    TestCase::init();
    QFETCH_GLOBAL(const Scheme, scheme);
    applyTheme(*qApp, scheme);
    useThePointer();
}

qreal PictureTest::scale()
{
    QFETCH_GLOBAL(const qreal, scale);
    return scale;
}

const Tokens& PictureTest::tokens()
{
    QFETCH_GLOBAL(const Scheme, scheme);
    return Tokens::of(scheme);
}

Picture PictureTest::drawn(QSize size, const QColor& ground, const Picture::Draw& draw)
{
    return {size, scale(), ground, draw};
}

Picture PictureTest::drawn(QWidget& widget)
{
    return {widget, scale()};
}

Picture PictureTest::drawnItem(const QAbstractItemView& view, const QModelIndex& index, QSize size,
                               const QColor& ground, QStyle::State state)
{
    QStyleOptionViewItem option;
    option.initFrom(&view);
    option.widget = &view;
    option.state = QStyle::State_Enabled | state;
    option.rect = QRect(QPoint(), size);
    return drawn(size, ground, [&](QPainter& painter) { view.itemDelegate()->paint(&painter, option, index); });
}

Picture PictureTest::drawnFocused(QWidget& widget)
{
    activate(*widget.window());
    widget.setFocus(Qt::TabFocusReason);
    QTest::keyClick(&widget, Qt::Key_F24);
    settle();
    return drawn(widget);
}

} // namespace abissora::test

// SPDX-License-Identifier: MIT
#include "WrapLabel.h"

#include <QPainter>
#include <QTextLayout>

namespace abissora {

namespace {

/// Lays the text out in lines of the given width and gives its height.
int layOut(QTextLayout& layout, const QLabel& label, int width)
{
    QTextOption option(label.alignment() & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTextDirection(label.layoutDirection());
    layout.setTextOption(option);
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return qCeil(height);
}

QString lines(QString text)
{
    return text.replace(u'\n', QChar::LineSeparator);
}

} // namespace

WrapLabel::WrapLabel(TextStyle style, Ink ink, const QString& text, QWidget* parent)
    : InkLabel(style, ink, text, parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QSize WrapLabel::sizeHint() const
{
    const QSize size = fontMetrics().size(0, text());
    return {size.width() + 1, heightForWidth(size.width() + 1)};
}

QSize WrapLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

int WrapLabel::heightForWidth(int width) const
{
    QTextLayout layout(lines(text()), font());
    return std::max(layOut(layout, *this, width), fontMetrics().height());
}

void WrapLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    QTextLayout layout(lines(text()), font());
    const int tall = layOut(layout, *this, width());
    layout.draw(&painter, QPointF(0, alignment() & Qt::AlignTop ? 0 : (height() - tall) / 2.0));
}

} // namespace abissora

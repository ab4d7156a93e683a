// SPDX-License-Identifier: MIT
#include "Labels.h"

#include "Literals.h"
#include "WordWidths.h"

#include <QEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTextDocument>
#include <QTextLayout>
#include <QToolTip>

namespace abissora {

namespace {

QString inOneLine(QString text)
{
    return text.replace(u'\n', u' ');
}

} // namespace

InkLabel::InkLabel(TextStyle style, Ink ink, const QString& text, QWidget* parent)
    : QLabel(text, parent)
    , m_style(style)
    , m_ink(ink)
{
    setTextFormat(Qt::PlainText);
    dress();
}

void InkLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    const bool affects = event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationFontChange;
    if (affects && !m_dressing)
        dress();
}

void InkLabel::dress()
{
    const QScopedValueRollback dressing(m_dressing, true);
    setFont(abissora::font(m_style));
    QPalette own;
    own.setColor(QPalette::WindowText, Tokens::of(palette()).*m_ink);
    setPalette(own);
}

/// Shaping takes longer than painting, and a label is painted again and again.
struct WrapLabel::Lines
{
    explicit Lines(const WrapLabel& label)
        : text(label.text())
        , width(label.width())
        , alignment(label.alignment())
        , direction(label.layoutDirection())
        , layout({}, label.font())
    {
        QTextOption option(alignment & Qt::AlignHorizontal_Mask);
        option.setTextDirection(direction);
        height = layOutLines(layout, text, option, width);
    }

    [[nodiscard]] bool areThoseOf(const WrapLabel& label) const
    {
        return text == label.text() && width == label.width() && alignment == label.alignment() &&
               direction == label.layoutDirection() && layout.font() == label.font();
    }

    QString text;
    int width;
    Qt::Alignment alignment;
    Qt::LayoutDirection direction;
    QTextLayout layout;
    int height = 0;
};

WrapLabel::WrapLabel(TextStyle style, Ink ink, const QString& text, QWidget* parent)
    : InkLabel(style, ink, text, parent)
{
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    m_words = WordWidths::of(font());
}

void WrapLabel::changeEvent(QEvent* event)
{
    InkLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        m_words = WordWidths::of(font());
}

WrapLabel::~WrapLabel() = default;

QSize WrapLabel::sizeHint() const
{
    const QSize size = fontMetrics().size(0, text());
    return {size.width() + 1, heightForWidth(size.width() + 1)};
}

QSize WrapLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

std::optional<int> WrapLabel::linesOf(const QString& text, int width) const
{
    return m_words->linesOf(text, width);
}

int WrapLabel::heightOf(const QString& text, int width) const
{
    return std::max(m_words->heightOf(text, width), fontMetrics().height());
}

const WrapLabel::Lines& WrapLabel::lines()
{
    if (!m_lines || !m_lines->areThoseOf(*this))
        m_lines = std::make_unique<Lines>(*this);
    return *m_lines;
}

void WrapLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const Lines& shown = lines();
    const qreal top = alignment() & Qt::AlignTop ? 0 : (height() - shown.height) / 2.0;
    shown.layout.draw(&painter, QPointF(0, top));
}

ElidedLabel::ElidedLabel(TextStyle style, Ink ink, QWidget* parent)
    : InkLabel(style, ink, {}, parent)
{}

int ElidedLabel::mostWidthOf(const QString& text) const
{
    return qCeil(WordWidths::of(font())->mostWidthOf(inOneLine(text)));
}

QSize ElidedLabel::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(inOneLine(text())) + 1, fontMetrics().height()};
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 4, fontMetrics().height()};
}

bool ElidedLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const bool fits = sizeHint().width() <= width();
        // Plain text whatever it looks like: a tool tip would take "<b>" for markup.
        const QString tip = fits ? QString() : u"<p>%1</p>"_s.arg(text().toHtmlEscaped());
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
        return true;
    }
    return InkLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignLeading | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(inOneLine(text()), Qt::ElideRight, width()));
}

QString toolTipText(const QString& text)
{
    // Only where it must be: screen readers read tool tips, too.
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace abissora

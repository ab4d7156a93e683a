// SPDX-License-Identifier: MIT
#include "Chip.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Buttons.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"
#include "Tokens.h"
#include "TypeScale.h"

#include <QLabel>
#include <QPainter>
#include <QStyle>

namespace abissora {

namespace {

/// Ends in an ellipsis where it has no room; the tool tip then has all of it.
class ChipText final : public QLabel
{
public:
    [[nodiscard]] QSize minimumSizeHint() const override
    {
        return {fontMetrics().averageCharWidth() * 4, QLabel::minimumSizeHint().height()};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                              fontMetrics().elidedText(text(), Qt::ElideRight, width()), foregroundRole());
    }
};

} // namespace

Chip::Chip(QWidget* parent)
    : QFrame(parent)
    , m_icon(new IconView({}, metrics::iconSize))
    , m_text(new ChipText)
    , m_clear(named(new IconButton(symbolIcon(u"xmark.circle.fill"_s, NamedColor::secondary), u"Cancella filtri"_s),
                    u"clear"_s))
{
    setAccessibleRole(*this, QAccessible::Grouping);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    m_text->setFont(abissora::font(TextStyle::Caption));
    m_text->setTextFormat(Qt::PlainText);
    m_clear->setFixedSize(metrics::spaceXL - 2, metrics::spaceXL - 2);
    setLayout(inRow(metrics::spaceXS + 1, {m_icon, m_text, m_clear}, {metrics::spaceS + 2, 2, metrics::spaceXS, 2}));
    connect(m_clear, &QAbstractButton::clicked, this, &Chip::clearClicked);
}

void Chip::setIcon(const QIcon& icon)
{
    m_icon->setIcon(icon);
}

void Chip::setText(const QString& text)
{
    m_text->setText(text);
    m_text->setToolTip(toolTipText(text));
    setAccessibleName(text);
}

QString Chip::text() const
{
    return m_text->text();
}

void Chip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawPanel(painter, rect(), height() / 2.0, Tokens::of(palette()).accentTint, {});
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "AboutView.h"

#include "Assembly.h"
#include "Cards.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "ProgramFacts.h"
#include "SettingsGroupBox.h"
#include "SymbolIcon.h"
#include "Tokens.h"

#include <QPainter>
#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int aboutWidth = 400;
constexpr int aboutIconSide = 104;

// Parts of the icon's side; its picture is a rounded square with a little air around it.
constexpr qreal air = 6.0 / 128;
constexpr qreal cornerRadius = 27.0 / 128;
constexpr qreal blur = 0.11;
constexpr qreal drop = 0.045;
constexpr int layers = 40;
constexpr qreal darkness = 1.6;

Card* makeRows(const ProgramFacts& program)
{
    auto* card = new Card;
    card->content()->setSpacing(metrics::spaceS - 2);
    for (const ProgramFact& fact : program.all()) {
        if (!card->findChildren<SettingsInfoRow*>().isEmpty())
            card->content()->addWidget(new Separator(Separator::Weight::Divider));
        auto* row = new SettingsInfoRow(fact.label, &Tokens::secondaryText, TextStyle::Callout);
        row->setValue(fact.value);
        card->content()->addWidget(row);
    }
    return card;
}

} // namespace

ShadowedIcon::ShadowedIcon(int side, QWidget* parent)
    : QWidget(parent)
    , m_icon(applicationIcon())
    , m_side(side)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize ShadowedIcon::sizeHint() const
{
    const int whole = m_side + 2 * qCeil(m_side * (blur + drop - air));
    return {whole, whole};
}

void ShadowedIcon::paintEvent(QPaintEvent*)
{
    QRect place(0, 0, m_side, m_side);
    place.moveCenter(rect().center());
    const qreal inset = m_side * air;
    const QRectF square = QRectF(place).adjusted(inset, inset, -inset, -inset).translated(0, m_side * drop);

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // From the faint rim inward. Opaque: what is translucent and faint vanishes on a dark ground.
    const QColor ground = palette().color(QPalette::Window);
    const QColor scrim = Tokens::of(palette()).scrim;
    const QColor ink = QColor::fromRgb(scrim.rgb());
    for (int layer = 0; layer < layers; ++layer) {
        const qreal inward = qreal(layer) / layers;
        const qreal reach = m_side * blur * (1 - 2 * inward);
        const qreal radius = std::max(m_side * cornerRadius + reach, 0.0);
        painter.setBrush(mix(ground, ink, scrim.alphaF() * darkness * inward * inward));
        painter.drawRoundedRect(square.adjusted(-reach, -reach, reach, reach), radius, radius);
    }
    m_icon.paint(&painter, place);
}

AboutView::AboutView(const ProgramFacts& program, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(u"aboutView"_s);
    auto* name = new InkLabel(TextStyle::LargeTitle, &Tokens::text, u"Abissora"_s);
    auto* subtitle =
        new InkLabel(TextStyle::Body, &Tokens::secondaryText, u"Gestione attrezzatura subacquea e manutenzioni"_s);
    setLayout(inColumn(metrics::spaceXS,
                       {{new ShadowedIcon(aboutIconSide), 0, Qt::AlignHCenter},
                        Gap{metrics::spaceXS},
                        {name, 0, Qt::AlignHCenter},
                        {subtitle, 0, Qt::AlignHCenter},
                        Gap{metrics::spaceL},
                        makeRows(program),
                        Stretch()},
                       {metrics::spaceXL, metrics::spaceL, metrics::spaceXL, metrics::spaceXL}));
    setMinimumWidth(withText(aboutWidth, fontMetrics()));
}

void AboutView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setFocus();
}

} // namespace abissora

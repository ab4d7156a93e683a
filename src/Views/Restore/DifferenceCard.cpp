// SPDX-License-Identifier: MIT
#include "DifferenceCard.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "Painting.h"
#include "SymbolIcon.h"

#include <QPainter>

namespace abissora {

namespace {

constexpr int sideMargin = metrics::spaceL;
constexpr int lineIcon = 18;
constexpr int arrowSide = 13;
constexpr qreal tint = 0.12;

struct GroupLook
{
    QString symbol;
    NamedColor color;
    InkLabel::Ink ink;
};

GroupLook lookOf(DifferenceGroup::Kind kind)
{
    using Kind = DifferenceGroup::Kind;
    switch (kind) {
    case Kind::Returning:
        return {u"plus.circle"_s, NamedColor::green, &Tokens::ok};
    case Kind::Vanishing:
        return {u"minus.circle"_s, NamedColor::red, &Tokens::danger};
    case Kind::Documents:
        return {u"doc.text.fill"_s, NamedColor::blue, &Tokens::accentInk};
    case Kind::Changing:
        break;
    }
    return {u"pencil.circle"_s, NamedColor::blue, &Tokens::accentInk};
}

/// A number on a pill in a tint of its colour.
class CountBadge final : public InkLabel
{
public:
    CountBadge(qsizetype count, Ink ink)
        : InkLabel(TextStyle::CaptionSemibold, ink, QString::number(count))
        , m_ink(ink)
    {
        setObjectName(u"groupCount"_s);
        setAlignment(Qt::AlignCenter);
        setContentsMargins(metrics::spaceXS + 2, 1, metrics::spaceXS + 2, 1);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        const Tokens& tokens = Tokens::of(palette());
        drawPanel(painter, rect(), height() / 2.0, mix(tokens.surface, tokens.*m_ink, tint), {});
        painter.end();
        InkLabel::paintEvent(event);
    }

private:
    Ink m_ink;
};

ElidedLabel* rightLabel(InkLabel::Ink ink, const QString& text, QAnyStringView name)
{
    auto* label = named(new ElidedLabel(TextStyle::Callout, ink), name);
    label->setText(text);
    label->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    // Never shown here: without a parent it would be a window for a moment.
    if (text.isEmpty())
        label->hide();
    return label;
}

QWidget* makeGroup(const DifferenceGroup& group)
{
    const GroupLook look = lookOf(group.kind);
    auto* title = named(new InkLabel(TextStyle::BodyMedium, &Tokens::text, group.title), u"groupTitle");
    auto* lines =
        inColumn(metrics::spaceS,
                 {inRow(metrics::spaceS, {new IconView(symbolIcon(look.symbol, look.color), metrics::iconSize), title,
                                          new CountBadge(group.total, look.ink), Stretch{1}})},
                 {sideMargin, metrics::spaceM - 1, sideMargin, metrics::spaceM - 1});
    for (const DifferenceLine& line : group.lines)
        lines->addWidget(new DifferenceRow(line));
    if (const QString rest = group.rest(); !rest.isEmpty())
        lines->addWidget(named(new InkLabel(TextStyle::Callout, &Tokens::secondaryText, rest), u"groupRest"));
    auto* widget = new QWidget;
    setAccessibleRole(*widget, QAccessible::Grouping);
    widget->setObjectName(u"differenceGroup"_s);
    widget->setAccessibleName(u"%1: %2"_s.arg(group.title).arg(group.total));
    widget->setLayout(lines);
    return widget;
}

} // namespace

DifferenceCard::DifferenceCard(const QList<DifferenceGroup>& groups, QWidget* parent)
    : Card(parent)
{
    content()->setContentsMargins(1, 1, 1, 1);
    content()->setSpacing(0);
    for (const DifferenceGroup& group : groups) {
        if (content()->count() > 0)
            content()->addWidget(new Separator(Separator::Weight::Divider));
        content()->addWidget(makeGroup(group));
    }
}

DifferenceRow::DifferenceRow(const DifferenceLine& line, QWidget* parent)
    : QWidget(parent)
    , m_name(named(new ElidedLabel(TextStyle::Body, &Tokens::text), u"differenceName"))
    , m_detail(rightLabel(&Tokens::secondaryText, line.detail, u"differenceDetail"))
    , m_arrow(new IconView(symbolIcon(u"arrow.right"_s, NamedColor::secondary), arrowSide))
    , m_becomes(rightLabel(&Tokens::text, line.becomes, u"differenceBecomes"))
{
    setAccessibleRole(*this, QAccessible::ListItem);
    setAccessibleName(line.text());
    setObjectName(u"difference"_s);
    m_name->setText(line.name);
    m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    if (line.becomes.isEmpty())
        m_arrow->hide();
    auto* icon = new IconView(typeIcon(line.look.icon, line.look.color), lineIcon);
    setLayout(
        inRow(metrics::spaceXS + 2,
              {icon, Gap{metrics::spaceXS - 1}, {m_name, 1}, Gap{metrics::spaceS}, m_detail, m_arrow, m_becomes}));
}

void DifferenceRow::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    shareRoom();
}

void DifferenceRow::shareRoom()
{
    int room = m_name->width();
    for (const QWidget* shown : std::initializer_list<const QWidget*>{m_detail, m_becomes})
        room += shown->isHidden() ? 0 : shown->width();
    room -= std::min(m_name->sizeHint().width(), room / 2);
    const int becomes = m_becomes->isHidden() ? 0 : m_becomes->sizeHint().width();
    const int most = std::max(room / 2, room - m_detail->sizeHint().width());
    m_becomes->setMaximumWidth(std::min(becomes, most));
    m_detail->setMaximumWidth(std::max(0, room - std::min(becomes, most)));
}

} // namespace abissora

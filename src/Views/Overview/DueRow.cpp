// SPDX-License-Identifier: MIT
#include "DueRow.h"

#include "Accessibility.h"
#include "Buttons.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "RegisterFigures.h"
#include "SymbolIcon.h"

#include <QFocusEvent>
#include <QHBoxLayout>
#include <QKeyEvent>

namespace abissora {

namespace {

constexpr int tileSide = 38;
constexpr int gap = metrics::spaceM + 2;
constexpr int lineGap = 2;

bool walks(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp || key == Qt::Key_PageDown ||
           key == Qt::Key_Home || key == Qt::Key_End;
}

} // namespace

DueRow::DueRow(QWidget* parent)
    : QWidget(parent)
    , m_tile(new IconTile(tileSide))
    , m_name(new ElidedLabel(TextStyle::BodyMedium, &Tokens::text))
    , m_state(new ElidedLabel(TextStyle::Caption, &Tokens::danger))
    , m_add(new PrimaryButton(u"Aggiungi Manutenzione"_s))
    , m_details(new PlainButton(u"Dettagli"_s))
{
    setAccessibleRole(*this, QAccessible::ListItem);
    m_tile->setObjectName(u"dueIcon"_s);
    m_name->setObjectName(u"dueName"_s);
    m_state->setObjectName(u"dueState"_s);
    m_add->setObjectName(u"addMaintenance"_s);
    m_details->setObjectName(u"showDetails"_s);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(lineGap);
    texts->addStretch();
    texts->addWidget(m_name);
    texts->addWidget(m_state);
    texts->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(metrics::spaceL, metrics::spaceM, metrics::spaceL, metrics::spaceM);
    layout->setSpacing(gap);
    layout->addWidget(m_tile);
    layout->addLayout(texts, 1);
    for (QAbstractButton* button : {m_add, m_details}) {
        layout->addWidget(button);
        button->installEventFilter(this);
        connect(button, &QAbstractButton::clicked, this, [this, button] { choose(*button); });
    }
}

void DueRow::choose(QAbstractButton& button)
{
    // Pressed by a screen reader it does not have the focus yet; it is where the focus comes back to.
    if (!button.hasFocus())
        button.setFocus(Qt::OtherFocusReason);
    Q_EMIT chosen();
}

void DueRow::setItem(const RegisterSummary::DueItem& item, const TypeAppearance& appearance)
{
    m_equipment = item.equipment;
    m_tile->setIcon(typeIcon(appearance.icon, appearance.color), appearance.color);
    m_name->setText(item.equipment.name);
    m_state->setText(dueText(item));
    setAccessibleName(m_name->text() + u", "_s + m_state->text());
    for (QAbstractButton* button : {m_add, m_details})
        button->setAccessibleDescription(item.equipment.name);
}

std::optional<DueRow::Part> DueRow::focusedPart() const
{
    const QWidget* const focused = window()->focusWidget();
    if (focused == m_add)
        return AddMaintenance;
    if (focused == m_details)
        return Details;
    return std::nullopt;
}

int DueRow::rowHeight()
{
    const auto lineHeight = [](TextStyle style) { return QFontMetrics(abissora::font(style)).height(); };
    const int texts = lineHeight(TextStyle::BodyMedium) + lineGap + lineHeight(TextStyle::Caption);
    return std::max({tileSide, texts, controlHeight(QFontMetrics(abissora::font(TextStyle::Body)))}) +
           2 * metrics::spaceM;
}

bool DueRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        Q_EMIT focused(static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason);
    } else if (event->type() == QEvent::KeyPress) {
        if (const int key = static_cast<QKeyEvent*>(event)->key(); walks(key)) {
            Q_EMIT walked(key);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace abissora

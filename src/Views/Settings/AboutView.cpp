// SPDX-License-Identifier: MIT
#include "AboutView.h"

#include "AboutRow.h"
#include "Card.h"
#include "InkLabel.h"
#include "Metrics.h"
#include "Separator.h"
#include "ShadowedIcon.h"

#include <QVBoxLayout>

namespace abissora {

namespace {

constexpr int contentWidth = 400;
constexpr int iconSide = 104;

Card* makeRows(const AppContext& context)
{
    const AppInfo& info = context.info;
    const QString& author = context.product.author;
    const QList<std::pair<QString, QString>> rows{
        {QStringLiteral("Versione"), info.version() + QStringLiteral(" (build ") + info.build() + QLatin1Char(')')},
        {QStringLiteral("Data Build"), info.buildDate()},
        {QStringLiteral("Sviluppato da"), author},
        {QStringLiteral("Copyright"), QStringLiteral("© ") + info.year() + QLatin1Char(' ') + author},
    };
    auto* card = new Card;
    card->content()->setSpacing(metrics::spaceXS / 2);
    for (const auto& [label, value] : rows) {
        if (label != rows.first().first)
            card->content()->addWidget(new Separator(Separator::Weight::Divider));
        card->content()->addWidget(new AboutRow(label, value));
    }
    return card;
}

} // namespace

AboutView::AboutView(const AppContext& context, QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("aboutView"));
    auto* name = new InkLabel(TextStyle::LargeTitle, &Tokens::text, QStringLiteral("Abissora"));
    auto* subtitle = new InkLabel(TextStyle::Body, &Tokens::secondaryText,
                                  QStringLiteral("Gestione attrezzatura subacquea e manutenzioni"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(metrics::spaceXL, metrics::spaceL, metrics::spaceXL, metrics::spaceXL);
    layout->setSpacing(metrics::spaceXS);
    layout->addWidget(new ShadowedIcon(iconSide), 0, Qt::AlignHCenter);
    layout->addSpacing(metrics::spaceXS);
    layout->addWidget(name, 0, Qt::AlignHCenter);
    layout->addWidget(subtitle, 0, Qt::AlignHCenter);
    layout->addSpacing(metrics::spaceL);
    layout->addWidget(makeRows(context));
    layout->addStretch();
    setMinimumWidth(withText(contentWidth, fontMetrics()));
}

void AboutView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    setFocus();
}

} // namespace abissora

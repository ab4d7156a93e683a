// SPDX-License-Identifier: MIT
#include "StatisticsView.h"

#include "CardGrid.h"
#include "Cards.h"
#include "ControlLook.h"
#include "IconViews.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "ScreenPage.h"
#include "SymbolIcon.h"

#include <QEvent>
#include <QGridLayout>
#include <QProgressBar>
#include <QVBoxLayout>

namespace abissora {

namespace {

enum Column { IconColumn, NameColumn, BarColumn, CountColumn };

constexpr int iconWidth = 24;
constexpr int nameWidth = 150;
constexpr int countWidth = 40;
constexpr int rowHeight = 21;

} // namespace

/// How many items each type has, as bars measured against the whole register.
class TypeDistribution : public Card
{
public:
    TypeDistribution();

    /// One row per share in this order; none, and a text instead, when `total` is 0 or there is no share.
    void setShares(const QList<TypeShare>& shares, qsizetype total);

protected:
    void changeEvent(QEvent* event) override;

private:
    struct Row
    {
        IconView* icon;
        QLabel* name;
        QProgressBar* bar;
        QLabel* count;
    };

    void addRow();
    void removeRow();
    static void fitToText(const Row& row);
    static void fill(const Row& row, const TypeShare& share, qsizetype total);

    QGridLayout* m_grid;
    QLabel* m_nothing;
    QLabel* m_noTypes;
    QList<Row> m_rows;
};

TypeDistribution::TypeDistribution()
    : m_grid(new QGridLayout)
    , m_nothing(new WrapLabel(TextStyle::Body, &Tokens::secondaryText, u"Nessuna attrezzatura registrata"_s))
    , m_noTypes(new WrapLabel(TextStyle::Body, &Tokens::secondaryText, u"Nessuna tipologia trovata"_s))
{
    m_nothing->setObjectName(u"noEquipment"_s);
    m_noTypes->setObjectName(u"noTypes"_s);
    content()->addWidget(m_nothing);
    content()->addWidget(m_noTypes);
    content()->addLayout(m_grid);
    content()->setContentsMargins(metrics::spaceL, metrics::spaceM, metrics::spaceL, metrics::spaceM);
    m_grid->setHorizontalSpacing(metrics::spaceM);
    m_grid->setVerticalSpacing(metrics::spaceS);
    m_grid->setColumnMinimumWidth(IconColumn, iconWidth);
    m_grid->setColumnMinimumWidth(CountColumn, countWidth);
    m_grid->setColumnStretch(BarColumn, 1);
}

void TypeDistribution::setShares(const QList<TypeShare>& shares, qsizetype total)
{
    const qsizetype wanted = total > 0 ? shares.size() : 0;
    m_nothing->setVisible(total == 0);
    m_noTypes->setVisible(total > 0 && shares.isEmpty());
    while (m_rows.size() < wanted)
        addRow();
    while (m_rows.size() > wanted)
        removeRow();
    for (qsizetype i = 0; i < wanted; ++i)
        fill(m_rows.at(i), shares.at(i), total);
}

void TypeDistribution::addRow()
{
    const Row row{new IconView, new WrapLabel(TextStyle::Body, &Tokens::text), new QProgressBar,
                  new InkLabel(TextStyle::Body, &Tokens::secondaryText)};
    const auto number = static_cast<int>(m_rows.size());
    row.name->setObjectName(u"typeName%1"_s.arg(number));
    row.bar->setObjectName(u"typeBar%1"_s.arg(number));
    row.bar->setTextVisible(false);
    row.bar->setFixedHeight(rowHeight);
    row.count->setObjectName(u"typeCount%1"_s.arg(number));
    row.count->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);

    m_grid->addWidget(row.icon, number, IconColumn, Qt::AlignLeading | Qt::AlignVCenter);
    m_grid->addWidget(row.name, number, NameColumn);
    m_grid->addWidget(row.bar, number, BarColumn, Qt::AlignVCenter);
    m_grid->addWidget(row.count, number, CountColumn);
    m_rows.append(row);
    fitToText(row);
}

void TypeDistribution::fitToText(const Row& row)
{
    row.name->setFixedWidth(withText(nameWidth, QFontMetrics(abissora::font(TextStyle::Body))));
}

void TypeDistribution::changeEvent(QEvent* event)
{
    Card::changeEvent(event);
    if (event->type() == QEvent::ApplicationFontChange || event->type() == QEvent::FontChange)
        std::ranges::for_each(m_rows, fitToText);
}

void TypeDistribution::removeRow()
{
    const Row row = m_rows.takeLast();
    for (QWidget* part : std::initializer_list<QWidget*>{row.icon, row.name, row.bar, row.count})
        delete part;
}

void TypeDistribution::fill(const Row& row, const TypeShare& share, qsizetype total)
{
    row.icon->setIcon(typeIcon(share.appearance.icon, share.appearance.color));
    row.name->setText(share.name);
    row.bar->setAccessibleName(share.name);
    row.bar->setRange(0, static_cast<int>(total));
    row.bar->setValue(static_cast<int>(share.count));
    setBarColor(*row.bar, share.appearance.color);
    row.count->setText(QString::number(share.count));
}

StatisticsView::StatisticsView(const EquipmentViewModel& equipment, const EquipmentTypeViewModel& types,
                               QWidget* parent)
    : QWidget(parent)
    , m_equipment(equipment)
    , m_types(types)
    , m_update(*this, [this] { redraw(); })
    , m_figures(new FigureGrid(statisticsFigures({}, 0), 3))
    , m_distribution(new TypeDistribution)
{
    setObjectName(u"statistics"_s);
    m_distribution->setObjectName(u"distribution"_s);
    m_distribution->setAccessibleName(u"Distribuzione per Tipo"_s);
    auto* page = new ScreenPage(u"Statistiche"_s);
    setFocusProxy(page); // what the tabs give the focus to where nothing in it takes any
    page->column()->addLayout(m_figures);
    page->column()->addWidget(new InkLabel(TextStyle::Headline, &Tokens::text, u"Distribuzione per Tipo"_s));
    page->column()->addWidget(m_distribution);
    page->column()->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(page);
    connect(&equipment, &EquipmentViewModel::equipmentChanged, &m_update, &VisibleUpdate::schedule);
    connect(&types, &EquipmentTypeViewModel::changed, &m_update, &VisibleUpdate::schedule);
}

void StatisticsView::redraw()
{
    const RegisterSummary summary = m_equipment.summary();
    const QList<EquipmentTypeModel> types = m_types.filteredTypes();
    m_figures->setValues(statisticsFigures(summary, types.size()));
    m_distribution->setShares(typeShares(m_equipment.equipment(), types), summary.total);
}

} // namespace abissora

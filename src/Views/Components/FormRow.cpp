// SPDX-License-Identifier: MIT
#include "FormRow.h"

#include "Metrics.h"
#include "TypeScale.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace abissora {

FormRow::FormRow(const QString& label, QWidget* field, QWidget* parent)
    : QWidget(parent)
{
    // With a buddy the label takes an ampersand for the mark of an access key.
    auto* name = new QLabel(QString(label).replace(QLatin1Char('&'), QLatin1String("&&")));
    name->setForegroundRole(QPalette::PlaceholderText);
    name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    name->setBuddy(field);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(metrics::spaceM);
    layout->setVerticalSpacing(metrics::spaceXS);
    setLabelColumn(labelColumn);
    layout->setColumnStretch(1, 1);
    const bool tall = field->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag;
    layout->addWidget(name, 0, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
    const bool narrow = field->maximumWidth() < QWIDGETSIZE_MAX ||
                        !(field->sizePolicy().horizontalPolicy() & (QSizePolicy::ExpandFlag | QSizePolicy::GrowFlag));
    layout->addWidget(field, 0, 1, narrow ? Qt::AlignLeft : Qt::Alignment());
}

void FormRow::setLabelColumn(int width)
{
    static_cast<QGridLayout*>(layout())->setColumnMinimumWidth(0, withText(width, fontMetrics()));
}

void FormRow::setHint(const QString& hint)
{
    if (m_hint == nullptr) {
        m_hint = new QLabel;
        m_hint->setFont(abissora::font(TextStyle::Caption));
        m_hint->setForegroundRole(QPalette::PlaceholderText);
        m_hint->setTextFormat(Qt::PlainText);
        m_hint->setWordWrap(true);
        static_cast<QGridLayout*>(layout())->addWidget(m_hint, 1, 1);
    }
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

void FormRow::addBelow(QWidget* widget)
{
    auto* const grid = static_cast<QGridLayout*>(layout());
    constexpr int hintRow = 1;
    grid->addWidget(widget, std::max(grid->rowCount(), hintRow + 1), 1);
}

} // namespace abissora

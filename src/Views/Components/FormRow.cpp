// SPDX-License-Identifier: MIT
#include "FormRow.h"

#include "AccessKeys.h"
#include "Accessibility.h"
#include "ControlLook.h"
#include "Labels.h"
#include "Literals.h"
#include "Metrics.h"
#include "OneLine.h"
#include "TypeScale.h"

#include <QGridLayout>
#include <QLabel>
#include <algorithm>

namespace abissora {

namespace {

enum Row { fieldRow, hintRow, errorRow };

} // namespace

CheckedField::CheckedField(QWidget* parent)
    : QLineEdit(parent)
{
    keepOneLine(*this);
}

void CheckedField::setError(const QString& error)
{
    if (error == m_error)
        return;
    m_error = error;
    setInvalidLook(*this, !error.isEmpty());
    setAccessibleDescription(error);
    if (isVisible())
        announce(*this, error);
    Q_EMIT errorChanged(error);
}

FormRow::FormRow(const QString& label, QWidget* field, QChar accessKey, QWidget* parent)
    : QWidget(parent)
{
    // With a buddy the label takes an ampersand for the mark of an access key.
    auto* name = new NameLabel(QString(label).replace(u'&', "&&"_L1));
    name->setForegroundRole(QPalette::PlaceholderText);
    name->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (!label.isEmpty())
        name->setBuddy(field);
    name->setAccessKey(accessKey, field);
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setHorizontalSpacing(metrics::spaceM);
    layout->setVerticalSpacing(metrics::spaceXS);
    setLabelColumn(labelColumn);
    layout->setColumnStretch(1, 1);
    const bool tall = field->sizePolicy().verticalPolicy() & QSizePolicy::ExpandFlag;
    layout->addWidget(name, fieldRow, 0, tall ? Qt::AlignTop : Qt::AlignVCenter);
    const bool narrow = field->maximumWidth() < QWIDGETSIZE_MAX ||
                        !(field->sizePolicy().horizontalPolicy() & (QSizePolicy::ExpandFlag | QSizePolicy::GrowFlag));
    layout->addWidget(field, fieldRow, 1, narrow ? Qt::AlignLeft : Qt::Alignment());
    if (const auto* checked = qobject_cast<CheckedField*>(field))
        connect(checked, &CheckedField::errorChanged, this, &FormRow::showError);
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
        static_cast<QGridLayout*>(layout())->addWidget(m_hint, hintRow, 1);
    }
    m_hint->setText(hint);
    m_hint->setVisible(!hint.isEmpty());
}

void FormRow::addBelow(QWidget* widget)
{
    auto* const grid = static_cast<QGridLayout*>(layout());
    grid->addWidget(widget, std::max(grid->rowCount(), errorRow + 1), 1);
}

void FormRow::showError(const QString& error)
{
    if (m_error == nullptr) {
        m_error = new WrapLabel(TextStyle::Caption, &Tokens::danger);
        m_error->setObjectName(u"error"_s);
        static_cast<QGridLayout*>(layout())->addWidget(m_error, errorRow, 1);
    }
    m_error->setText(error);
    m_error->setVisible(!error.isEmpty());
}

} // namespace abissora

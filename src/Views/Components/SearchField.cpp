// SPDX-License-Identifier: MIT
#include "SearchField.h"

#include "Literals.h"
#include "OneLine.h"
#include "SymbolIcon.h"

#include <QAction>
#include <QKeyEvent>

namespace abissora {

SearchField::SearchField(const QString& placeholder, QWidget* parent)
    : QLineEdit(parent)
    , m_clear(new QAction(this))
{
    keepOneLine(*this);
    setPlaceholderText(placeholder);
    setAccessibleName(placeholder);
    auto* lens = new QAction(this);
    lens->setIcon(symbolIcon(u"magnifyingglass"_s, NamedColor::secondary));
    connect(lens, &QAction::triggered, this, [this] { setFocus(Qt::MouseFocusReason); });
    lens->setText(placeholder); // to be read: the toolkit makes a button of it
    addAction(lens, QLineEdit::LeadingPosition);

    m_clear->setObjectName(u"clear"_s);
    m_clear->setIcon(symbolIcon(u"xmark.circle.fill"_s, NamedColor::secondary));
    m_clear->setText(u"Cancella la ricerca"_s);
    m_clear->setToolTip(m_clear->text());
    addAction(m_clear, QLineEdit::TrailingPosition);
    m_clear->setVisible(false); // after it was added: the field only notices changes
    connect(m_clear, &QAction::triggered, this, &SearchField::clearByPerson);
    connect(this, &QLineEdit::textChanged, m_clear,
            [this](const QString& text) { m_clear->setVisible(!text.isEmpty()); });
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clearByPerson();
        event->accept();
        return;
    }
    if (event->key() == Qt::Key_Down && event->modifiers() == Qt::NoModifier) {
        Q_EMIT resultsRequested();
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void SearchField::clearByPerson()
{
    if (text().isEmpty())
        return;
    clear();
    setFocus(Qt::OtherFocusReason);
    Q_EMIT textEdited(QString());
}

} // namespace abissora

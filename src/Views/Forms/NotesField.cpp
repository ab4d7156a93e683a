// SPDX-License-Identifier: MIT
#include "NotesField.h"

#include "Literals.h"
#include "TypeScale.h"

namespace abissora {

NotesField::NotesField(int height, QWidget* parent)
    : QPlainTextEdit(parent)
{
    setAccessibleName(u"Note"_s);
    setTabChangesFocus(true);
    setFixedHeight(withText(height, fontMetrics()));
}

void NotesField::setNotes(const QString& notes)
{
    m_given = notes;
    setPlainText(notes);
    m_shown = toPlainText();
}

QString NotesField::notes() const
{
    // Not whether the document is modified: a screen reader that puts in the whole text leaves it unmodified.
    const QString text = toPlainText();
    return text == m_shown ? m_given : text;
}

} // namespace abissora

// SPDX-License-Identifier: MIT
#include "FormFields.h"

#include "Accessibility.h"
#include "Assembly.h"
#include "Cards.h"
#include "Literals.h"
#include "OneLine.h"
#include "SymbolIcon.h"
#include "TypeAppearance.h"
#include "TypeScale.h"

#include <QLineEdit>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <limits>

namespace abissora {

namespace {

constexpr int entriesShown = 17;

} // namespace

GroupBox* makeGroup(const QString& title, std::initializer_list<QWidget*> rows)
{
    auto* group = new GroupBox(title);
    for (QWidget* row : rows)
        group->content()->addWidget(row);
    return group;
}

QLineEdit* makeTextField(const QString& objectName, const QString& placeholder)
{
    auto* field = named(new QLineEdit, objectName);
    keepOneLine(*field);
    field->setMaxLength(std::numeric_limits<int>::max());
    field->setPlaceholderText(placeholder);
    return field;
}

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

TypePicker::TypePicker(QWidget* parent)
    : QComboBox(parent)
{
    setAccessiblePicker(*this);
    setFocusPolicy(Qt::StrongFocus);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMaxVisibleItems(entriesShown);
    connect(this, &QComboBox::activated, this, &TypePicker::choose);
}

void TypePicker::setTypes(const QList<EquipmentTypeModel>& types, const QString& selectedTypeName)
{
    if (types != m_types) {
        m_types = types;
        clear();
        for (const EquipmentTypeModel& type : types) {
            const TypeAppearance appearance = appearanceOf(type);
            addItem(typeIcon(appearance.icon, appearance.color), type.name);
        }
    }
    m_selected = selectedTypeName;
    setCurrentIndex(findText(selectedTypeName, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void TypePicker::choose(int index)
{
    const QString name = itemText(index);
    if (name == m_selected)
        return;
    m_selected = name;
    Q_EMIT chosen(name);
}

void TypePicker::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

} // namespace abissora

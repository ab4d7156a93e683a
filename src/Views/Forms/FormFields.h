// SPDX-License-Identifier: MIT
#pragma once

#include "EquipmentTypeModel.h"

#include <QComboBox>
#include <QPlainTextEdit>

class QLineEdit;

namespace abissora {

class GroupBox;

/// A group of rows of a form.
[[nodiscard]] GroupBox* makeGroup(const QString& title, std::initializer_list<QWidget*> rows);

/// A line of text of any length: a form shall not shorten what is stored. Give it that by setStoredText().
[[nodiscard]] QLineEdit* makeTextField(const QString& objectName, const QString& placeholder);

/// Text of several lines. The editor has its own idea of line ends and of spaces that do not break: what nobody changed
/// is given back as it was given. Tab leaves the field.
class NotesField : public QPlainTextEdit
{
    Q_OBJECT

public:
    /// `height` is for the usual size of text.
    explicit NotesField(int height, QWidget* parent = nullptr);

    void setNotes(const QString& notes);
    [[nodiscard]] QString notes() const;

private:
    QString m_given;
    QString m_shown;
};

/// One of the types, by name, each with its picture. The wheel belongs to what is around the picker.
class TypePicker : public QComboBox
{
    Q_OBJECT

public:
    explicit TypePicker(QWidget* parent = nullptr);

    /// Emits nothing. Shows no choice when none of the types has the name.
    void setTypes(const QList<EquipmentTypeModel>& types, const QString& selectedTypeName);

Q_SIGNALS:
    /// The person chose another type.
    void chosen(const QString& typeName);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void choose(int index);

    QList<EquipmentTypeModel> m_types;
    QString m_selected;
};

} // namespace abissora

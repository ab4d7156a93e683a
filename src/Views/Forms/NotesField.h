// SPDX-License-Identifier: MIT
#pragma once

#include <QPlainTextEdit>

namespace abissora {

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

} // namespace abissora

// SPDX-License-Identifier: MIT
#pragma once

#include <QChar>
#include <QLabel>

class QAbstractButton;

namespace abissora {

// Alt and a letter of its label lead to a control of a form: to a field, or onto a button. Each letter stands for one
// control of its window. Texts stay without marks; the letters are underlined while Alt is held.

/// Presses the button, or changes the check box. The button's text comes first: another text takes the key away.
void setAccessKey(QAbstractButton& button, QChar key);

/// As `place` has to draw the text now: with the marks that the toolkit underlines, its own ampersands kept.
[[nodiscard]] QString markedText(const QString& text, QChar key, const QWidget& place);

/// Whether the letters are underlined in the window.
void setAccessKeysShown(QWidget& window, bool shown);

/// The key of a button; null without one.
[[nodiscard]] QChar accessKeyOf(const QAbstractButton& button);

/// A plain text beside or above a widget, to which its key leads.
class NameLabel : public QLabel
{
    Q_OBJECT

public:
    explicit NameLabel(const QString& text = {}, QWidget* parent = nullptr);

    /// Without a key it is a label as any other. The widget must outlive it.
    void setAccessKey(QChar key, QWidget* widget);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QChar m_key;
};

} // namespace abissora

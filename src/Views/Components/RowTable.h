// SPDX-License-Identifier: MIT
#pragma once

#include <QTableView>

namespace abissora {

/// A table of which the rows are what a person works with: one of them is selected at a time, and the keyboard stands
/// at one of them, selected or not. Home and End go to the first and the last row; the first Up or Down selects the
/// row where the keyboard stands. A right click takes the keyboard there and selects nothing.
class RowTable : public QTableView
{
    Q_OBJECT

public:
    explicit RowTable(QWidget* parent = nullptr);

    /// The keyboard works on this table, also while a menu has it.
    [[nodiscard]] bool hasKeyboard() const { return m_hasKeyboard; }
    /// Takes the keyboard to the first row and selects it.
    void goToFirstRow();

Q_SIGNALS:
    /// The keyboard stands at another row, or came or went.
    void placeChanged();

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void goToRow(int row);
    void placeKeyboard(const QModelIndex& index);
    void setHasKeyboard(bool has);

    bool m_hasKeyboard = false;
};

} // namespace abissora

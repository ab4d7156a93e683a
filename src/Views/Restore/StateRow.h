// SPDX-License-Identifier: MIT
#pragma once

#include "EarlierStateRow.h"

#include <QAbstractButton>

namespace abissora {

class InkLabel;

/// A kept state in three lines. Having the focus by the keyboard is choosing.
class StateButton final : public QAbstractButton
{
    Q_OBJECT

public:
    explicit StateButton(QWidget* parent = nullptr);

    void setState(const EarlierStateRow& state);
    /// One is chosen among all of a list; only that one is a stop for Tab.
    void setChosen(bool chosen);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

    /// Where the lines stand, each as wide as there is room.
    [[nodiscard]] QRect lineRect(int line) const;

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    [[nodiscard]] QStringList lines() const { return {m_state.when, m_state.counts, m_state.occasion}; }

    EarlierStateRow m_state;
};

/// A state, under its group's title where it is the first of one.
class StateRow final : public QWidget
{
    Q_OBJECT

public:
    explicit StateRow(QWidget* parent = nullptr);

    /// No title without a text.
    void setGroupTitle(const QString& title);
    [[nodiscard]] StateButton& button() const { return *m_button; }

private:
    InkLabel* m_title;
    StateButton* m_button;
};

} // namespace abissora
